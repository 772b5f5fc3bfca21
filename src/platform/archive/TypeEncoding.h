#pragma once

#include <QByteArrayView>

namespace sargan {

/// Refuses (ArchiveError at `offset`) an encoding that is empty, has an unknown letter, unbalanced brackets,
/// more than 16 levels, arrays whose elements hold nothing or whose size overflows, structs without fields,
/// or far more text than values: reading by a checked encoding takes time in proportion to the bytes read.
void checkTypeEncoding(QByteArrayView type, qint64 offset);

/// Steps through a checked encoding letter by letter.
class TypeCursor {
public:
    explicit TypeCursor(QByteArrayView type) : _type(type) {}

    bool atEnd() const { return _at == _type.size(); }
    char peek() const { return _type[_at]; }
    char take() { return _type[_at++]; }
    /// Whether the elements of an array, whose length has just been taken, are bytes.
    bool atBytes() const { return (peek() == 'c' || peek() == 'C') && _type[_at + 1] == ']'; }
    /// After '[': the array's length.
    quint64 takeLength();
    /// After '{': the struct's name and '='.
    void skipName();
    /// One item with all that is in it.
    void skipItem();

    qsizetype place() const { return _at; }
    void moveTo(qsizetype place) { _at = place; }

private:
    QByteArrayView _type;
    qsizetype _at = 0;
};

}  // namespace sargan
