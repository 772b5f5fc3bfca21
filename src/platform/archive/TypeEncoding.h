#pragma once

#include <QByteArrayView>

namespace sargan {

/// One item of a type encoding: a simple type by its letter, or a list of values.
struct TypeItem {
    char code = 0;         ///< the letter; '[' for an array, '{' for a struct
    QByteArrayView inner;  ///< an array's element type, a struct's fields
    quint64 count = 0;     ///< an array's length
};

/// Refuses (ArchiveError at `offset`) an encoding that is empty, has an unknown letter, unbalanced brackets,
/// more than 16 levels, arrays whose elements hold nothing or whose size overflows, structs without fields,
/// or far more text than values: reading by a checked encoding takes time in proportion to the bytes read.
void checkTypeEncoding(QByteArrayView type, qint64 offset);

/// Takes the first item off a checked encoding; false when nothing is left.
bool takeTypeItem(QByteArrayView& rest, TypeItem& item);

}  // namespace sargan
