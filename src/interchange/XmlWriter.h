#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace sargan {

/// Writes an XML file in UTF-8, one element a line, indented by tabs. It keeps no tree: a logbook's samples
/// are millions of elements.
class XmlWriter {
public:
    explicit XmlWriter(QByteArray& bytes);

    void open(const char* name);
    void open(const char* name, const char* attribute, const char* value);
    void close();
    void comment(const QString& text);
    /// An element with a text. Characters that XML cannot hold become U+FFFD.
    void element(const char* name, const QString& text);
    void element(const char* name, const char* ascii);
    void element(const char* name, qint64 number);
    /// With this many decimals, as "%.1f" gives them.
    void element(const char* name, double number, int decimals);
    void empty(const char* name);

private:
    friend class XmlLines;
    void indent();
    void start(const char* name);
    void end(const char* name);

    QByteArray& _bytes;
    std::vector<const char*> _open;
};

/// Many elements of one name, each with a number: the samples, which are most of a file. Their lines are put
/// together before the bytes grow.
class XmlLines {
public:
    /// A short name, not deep in the tree: tag and tabs have 32 characters.
    XmlLines(XmlWriter& xml, const char* name);
    ~XmlLines() { flush(); }
    XmlLines(const XmlLines&) = delete;
    XmlLines& operator=(const XmlLines&) = delete;

    void add(double number, int decimals);
    /// Hands on what is put together so far, before something else is written.
    void flush();

private:
    static constexpr std::size_t room = 4096, longestTag = 32;

    QByteArray& _bytes;
    /// The tags, padded: copying a size that is known beforehand takes one move.
    char _start[longestTag], _end[longestTag];
    std::size_t _startSize, _endSize;
    char _lines[room];
    std::size_t _size = 0;
};

/// Appends the number with this many decimals, rounded as "%.*f" does.
void appendFixed(QByteArray& bytes, double number, int decimals);
void appendWhole(QByteArray& bytes, qint64 number);

}  // namespace sargan
