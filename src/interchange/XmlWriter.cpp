#include "interchange/XmlWriter.h"

#include <QList>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace sargan {

namespace {

/// Room for any double with a few decimals.
constexpr std::size_t longestNumber = 400;

constexpr bool isXmlCharacter(char32_t c) {
    if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
    return (c < 0xD800 || c > 0xDFFF) && c != 0xFFFE && c != 0xFFFF && c <= 0x10FFFF;
}

QByteArray xmlText(const QString& text) {
    QString clean = text;
    const QList<uint> characters = text.toUcs4();
    if (!std::all_of(characters.begin(), characters.end(), isXmlCharacter)) {
        clean.clear();
        for (const char32_t c : characters) clean += QString::fromUcs4(isXmlCharacter(c) ? &c : U"\uFFFD", 1);
    }
    QByteArray bytes = clean.toUtf8();
    bytes.replace('&', "&amp;").replace('<', "&lt;").replace('>', "&gt;");
    // A reader takes a plain one for the end of a line.
    return bytes.replace('\r', "&#13;");
}

/// The same as to_chars gives for one decimal, where it is plain which tenth is nearest.
char* writeTenths(char* at, char* end, double number) {
    constexpr double largest = 1e8, doubt = 1e-6;
    const double tenths = number * 10;
    const double whole = std::floor(tenths);
    const bool isPlain = number > 0 && number < largest && std::abs(tenths - whole - 0.5) > doubt;
    if (!isPlain) return std::to_chars(at, end, number, std::chars_format::fixed, 1).ptr;
    const auto rounded = qint64(tenths - whole > 0.5 ? whole + 1 : whole);
    at = std::to_chars(at, end, rounded / 10).ptr;
    *at++ = '.';
    *at++ = char('0' + rounded % 10);
    return at;
}

char* writeFixed(char* at, char* end, double number, int decimals) {
    if (decimals == 1) return writeTenths(at, end, number);
    return std::to_chars(at, end, number, std::chars_format::fixed, decimals).ptr;
}

}  // namespace

void appendFixed(QByteArray& bytes, double number, int decimals) {
    char text[longestNumber];
    bytes.append(text, qsizetype(writeFixed(text, text + sizeof text, number, decimals) - text));
}

void appendWhole(QByteArray& bytes, qint64 number) {
    char text[24];
    const auto result = std::to_chars(text, text + sizeof text, number);
    bytes.append(text, qsizetype(result.ptr - text));
}

XmlWriter::XmlWriter(QByteArray& bytes) : _bytes(bytes) {
    _bytes += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
}

void XmlWriter::indent() {
    _bytes.append(qsizetype(_open.size()), '\t');
}

void XmlWriter::start(const char* name) {
    indent();
    _bytes.append('<').append(name).append('>');
}

void XmlWriter::end(const char* name) {
    _bytes.append("</").append(name).append(">\n");
}

void XmlWriter::open(const char* name) {
    start(name);
    _bytes.append('\n');
    _open.push_back(name);
}

void XmlWriter::open(const char* name, const char* attribute, const char* value) {
    indent();
    _bytes.append('<').append(name).append(' ').append(attribute);
    _bytes.append("=\"").append(value).append("\">\n");
    _open.push_back(name);
}

void XmlWriter::close() {
    const char* name = _open.back();
    _open.pop_back();
    indent();
    end(name);
}

void XmlWriter::comment(const QString& text) {
    indent();
    _bytes.append("<!--").append(text.toUtf8()).append("-->\n");
}

void XmlWriter::element(const char* name, const QString& text) {
    if (text.isEmpty()) return empty(name);
    start(name);
    _bytes.append(xmlText(text));
    end(name);
}

void XmlWriter::element(const char* name, const char* ascii) {
    start(name);
    _bytes.append(ascii);
    end(name);
}

void XmlWriter::element(const char* name, qint64 number) {
    start(name);
    appendWhole(_bytes, number);
    end(name);
}

void XmlWriter::element(const char* name, double number, int decimals) {
    start(name);
    appendFixed(_bytes, number, decimals);
    end(name);
}

void XmlWriter::empty(const char* name) {
    indent();
    _bytes.append('<').append(name).append(" />\n");
}

XmlLines::XmlLines(XmlWriter& xml, const char* name) : _bytes(xml._bytes) {
    const auto keep = [](const QByteArray& tag, char* kept) {
        Q_ASSERT(tag.size() <= qsizetype(longestTag));
        std::fill_n(kept, longestTag, ' ');
        return std::size_t(std::copy(tag.begin(), tag.end(), kept) - kept);
    };
    _startSize = keep(QByteArray(qsizetype(xml._open.size()), '\t') + '<' + name + '>', _start);
    _endSize = keep(QByteArray("</") + name + ">\n", _end);
}

void XmlLines::add(double number, int decimals) {
    if (_size + 2 * longestTag + longestNumber > room) flush();
    char* at = std::copy_n(_start, longestTag, _lines + _size) - longestTag + _startSize;
    at = writeFixed(at, at + longestNumber, number, decimals);
    std::copy_n(_end, longestTag, at);
    _size = std::size_t(at - _lines) + _endSize;
}

void XmlLines::flush() {
    _bytes.append(_lines, qsizetype(_size));
    _size = 0;
}

}  // namespace sargan
