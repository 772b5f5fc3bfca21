#include "interchange/XmlFile.h"

#include <QStringDecoder>
#include <cstring>

#include "platform/text/MacRoman.h"

namespace sargan {

namespace {

constexpr const documentproblem::Wording& wordingFor(pugi::xml_parse_status status) {
    switch (status) {
        case pugi::status_out_of_memory:
            return interchangeproblem::noMemory;
        case pugi::status_unrecognized_tag:
            return interchangeproblem::badTag;
        case pugi::status_bad_comment:
            return interchangeproblem::badComment;
        case pugi::status_bad_attribute:
            return interchangeproblem::badAttribute;
        case pugi::status_end_element_mismatch:
            return interchangeproblem::badEnd;
        case pugi::status_no_document_element:
            return interchangeproblem::noElement;
        default:
            return interchangeproblem::badXml;
    }
}

/// Bytes of the UTF-8 sequence at `at`, 0 when there is none.
int sequenceLength(const uchar* at, const uchar* end) {
    const uchar lead = *at;
    const int length = lead < 0x80   ? 1
                       : lead < 0xC2 ? 0
                       : lead < 0xE0 ? 2
                       : lead < 0xF0 ? 3
                       : lead < 0xF5 ? 4
                                     : 0;
    if (length == 0 || end - at < length) return 0;
    for (int i = 1; i < length; ++i)
        if ((at[i] & 0xC0) != 0x80) return 0;
    const bool isOverlong = (lead == 0xE0 && at[1] < 0xA0) || (lead == 0xF0 && at[1] < 0x90);
    const bool isBeyond = (lead == 0xED && at[1] > 0x9F) || (lead == 0xF4 && at[1] > 0x8F);
    return isOverlong || isBeyond ? 0 : length;
}

/// Eight plain ASCII characters at once: none from 0x80 on and none that is NUL.
bool areEightPlain(const uchar* at) {
    quint64 word;
    std::memcpy(&word, at, sizeof word);
    constexpr quint64 ones = 0x0101010101010101, highs = 0x8080808080808080;
    return ((word | ((word - ones) & ~word)) & highs) == 0;
}

/// The first byte that is no UTF-8, or NUL; -1 when there is none.
qsizetype firstBadByte(QByteArrayView bytes) {
    const auto* const begin = reinterpret_cast<const uchar*>(bytes.data());
    const uchar* const end = begin + bytes.size();
    for (const uchar* at = begin; at < end;) {
        if (end - at >= 8 && areEightPlain(at)) {
            at += 8;
            continue;
        }
        const int length = *at == 0 ? 0 : sequenceLength(at, end);
        if (length == 0) return at - begin;
        at += length;
    }
    return -1;
}

/// The encoding that the XML declaration names, in lower case; empty when it names none.
QByteArray declaredEncoding(QByteArrayView bytes) {
    if (!bytes.startsWith("<?xml")) return {};
    const QByteArray start = bytes.first(std::min<qsizetype>(bytes.size(), 300)).toByteArray();
    const QByteArray declaration = start.left(start.indexOf("?>"));
    qsizetype at = declaration.indexOf("encoding");
    if (at < 0) return {};
    at += qsizetype(qstrlen("encoding"));
    while (at < declaration.size() && (declaration[at] == '=' || std::isspace(uchar(declaration[at])))) ++at;
    if (at >= declaration.size() || (declaration[at] != '"' && declaration[at] != '\'')) return {};
    const qsizetype end = declaration.indexOf(declaration[at], at + 1);
    return end < 0 ? QByteArray() : declaration.mid(at + 1, end - at - 1).toLower();
}

QString decodeWindows1252(QByteArrayView bytes) {
    static constexpr char16_t signs[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text)
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0) c = QChar(signs[c.unicode() - 0x80]);
    return text;
}

/// UTF-16 or UTF-32, told by a byte order mark or by where the first bytes are zero.
std::optional<QStringConverter::Encoding> wideEncodingOf(QByteArrayView bytes) {
    const auto begins = [&bytes](const char* start, qsizetype size) {
        return bytes.startsWith(QByteArrayView(start, size));
    };
    if (begins("\0\0\xFE\xFF", 4) || begins("\0\0\0<", 4)) return QStringConverter::Utf32BE;
    if (begins("\xFF\xFE\0\0", 4) || begins("<\0\0\0", 4)) return QStringConverter::Utf32LE;
    if (begins("\xFE\xFF", 2) || begins("\0<", 2)) return QStringConverter::Utf16BE;
    if (begins("\xFF\xFE", 2) || begins("<\0", 2)) return QStringConverter::Utf16LE;
    return std::nullopt;
}

/// The first character that stands for something unreadable: U+FFFD, or half a surrogate pair.
qsizetype firstUnreadable(const QString& text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == QChar::ReplacementCharacter || text[at].isLowSurrogate()) return at;
        if (!text[at].isHighSurrogate()) continue;
        if (at + 1 == text.size() || !text[at + 1].isLowSurrogate()) return at;
        ++at;
    }
    return 0;
}

QByteArray fromWide(QByteArrayView bytes, QStringConverter::Encoding encoding) {
    QStringDecoder decoder(encoding);
    QString text = decoder(bytes);
    if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
    if (!decoder.hasError() && text.isValidUtf16()) return text.toUtf8();
    const QByteArray before = text.first(firstUnreadable(text)).toUtf8();
    throw ImportError(interchangeproblem::notUtf16, placeOf(before, before.size()));
}

/// Behind a comment, a processing instruction or a document type, or -1.
qsizetype afterMarkup(const QByteArray& text, qsizetype at) {
    const bool isComment = text.mid(at, 4) == "<!--";
    const char* const close = isComment ? "-->" : text.mid(at, 2) == "<?" ? "?>" : ">";
    const qsizetype end = text.indexOf(close, at + 2);
    return end < 0 ? -1 : end + qsizetype(qstrlen(close));
}

}  // namespace

FilePlace placeOf(QByteArrayView bytes, qsizetype offset) {
    const QByteArrayView before = bytes.first(std::clamp<qsizetype>(offset, 0, bytes.size()));
    const qsizetype lineStart = before.lastIndexOf('\n') + 1;
    return {int(before.count('\n')) + 1, int(before.size() - lineStart) + 1};
}

QByteArray utf8OfXml(QByteArray bytes) {
    if (const auto wide = wideEncodingOf(bytes)) {
        bytes = fromWide(bytes, *wide);
    } else if (bytes.startsWith("\xEF\xBB\xBF")) {
        bytes.remove(0, 3);
    } else {
        const QByteArray encoding = declaredEncoding(bytes);
        static const QByteArrayList western{"iso-8859-1", "latin1", "iso_8859-1", "windows-1252", "cp1252"};
        static const QByteArrayList macintosh{"macintosh", "x-mac-roman", "macroman", "mac"};
        if (western.contains(encoding)) bytes = decodeWindows1252(bytes).toUtf8();
        if (macintosh.contains(encoding)) bytes = MacRoman::decode(bytes).toUtf8();
    }
    const qsizetype bad = firstBadByte(bytes);
    if (bad < 0) return bytes;
    throw ImportError(bytes[bad] == '\0' ? interchangeproblem::zeroByte : interchangeproblem::notUtf8,
                      placeOf(bytes, bad));
}

XmlFile::XmlFile(const QByteArray& bytes, SpaceBetweenTags space) : _utf8(utf8OfXml(bytes)) {
    const unsigned flags =
        pugi::parse_default | pugi::parse_embed_pcdata |
        (space == SpaceBetweenTags::Kept ? pugi::parse_ws_pcdata : pugi::parse_ws_pcdata_single);
    // data() makes a copy of its own where the caller's bytes are shared: the parser writes into it.
    const pugi::xml_parse_result result =
        _document.load_buffer_inplace(_utf8.data(), std::size_t(_utf8.size()), flags, pugi::encoding_utf8);
    if (result) return;
    const bool isNowhere = result.status == pugi::status_no_document_element;
    throw ImportError(wordingFor(result.status),
                      placeOf(utf8OfXml(bytes), isNowhere ? 0 : qsizetype(result.offset)));
}

QByteArray beginningOf(const QByteArray& bytes) {
    constexpr qsizetype shown = 16384;
    const QByteArray start = bytes.left(shown);
    const auto wide = wideEncodingOf(start);
    return wide ? QString(QStringDecoder(*wide)(start)).toUtf8() : start;
}

QByteArray rootNameOf(const QByteArray& bytes) {
    const QByteArray text = beginningOf(bytes);
    qsizetype at = text.indexOf('<');
    while (at >= 0 && at + 1 < text.size() && (text[at + 1] == '!' || text[at + 1] == '?')) {
        at = afterMarkup(text, at);
        if (at >= 0) at = text.indexOf('<', at);
    }
    if (at < 0) return {};
    qsizetype end = at + 1;
    while (end < text.size() && !std::strchr(" \t\r\n/>", text[end])) ++end;
    return text.mid(at + 1, end - at - 1);
}

}  // namespace sargan
