#include "platform/files/FileMessage.h"

namespace sargan {

using namespace Qt::StringLiterals;

QString FileMessage::text() const {
    const QStringList pieces = format.split(u"%@"_s);
    QString filled = pieces.first();
    for (qsizetype i = 1; i < pieces.size(); ++i) filled += arguments.value(i - 1) + pieces[i];
    return filled;
}

FileMessage fileMessage(const char* key, const char* format, const QStringList& arguments) {
    const QString pattern = QString::fromUtf8(format);
    return {QString::fromUtf8(key), pattern, arguments.mid(0, pattern.count(u"%@"_s))};
}

}  // namespace sargan
