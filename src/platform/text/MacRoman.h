#pragma once

#include <QByteArray>
#include <QString>

namespace sargan {

/// The one-byte encoding Mac OS Roman: ASCII, and 128 letters and signs of western European languages.
class MacRoman {
public:
    /// Appends the text's bytes. A character that the encoding lacks becomes its nearest replacement: the
    /// letter without its accent ("ő" -> "o"), the sign that looks like it, or "?". Answers whether every
    /// character went in as it is; an accent written as a character of its own counts as it is.
    static bool append(QByteArray& bytes, QStringView text);
    static QString decode(QByteArrayView bytes);
};

}  // namespace sargan
