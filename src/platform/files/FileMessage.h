#pragma once

#include <QString>
#include <QStringList>

namespace sargan {

/// A sentence about a file, kept apart from its values so that it can be shown in another language: look up
/// `key` in the table "Files" with `format` (English) as the fallback, and fill each "%@" with one argument.
struct FileMessage {
    QString key;
    QString format;
    QStringList arguments;

    /// The English sentence.
    QString text() const;
};

/// `arguments` is cut to the number of "%@" in `format`.
FileMessage fileMessage(const char* key, const char* format, const QStringList& arguments);

}  // namespace sargan
