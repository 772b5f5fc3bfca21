#pragma once

#include <QFileInfo>
#include <span>
#include <stdexcept>

#include "platform/files/FileMessage.h"

namespace sargan {

/// One kind of problem in words. `format` takes file name, folder and the system's explanation, in this
/// order, as many as it has "%@".
template <typename Problem>
struct FileWording {
    Problem reason;
    const char* key;
    const char* format;
};

template <typename Problem>
FileMessage wordingFor(std::span<const FileWording<Problem>> wordings, Problem reason, const QString& path,
                       int systemError) {
    for (const FileWording<Problem>& wording : wordings) {
        if (wording.reason != reason) continue;
        const QFileInfo file(QString(path).replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter)));
        return fileMessage(wording.key, wording.format,
                           {file.fileName(), file.absolutePath(), qt_error_string(systemError)});
    }
    throw std::logic_error("a file problem without a sentence");
}

template <typename Problem>
QList<FileMessage> allWordings(std::span<const FileWording<Problem>> wordings) {
    QList<FileMessage> all;
    for (const FileWording<Problem>& wording : wordings) {
        all.append({QString::fromUtf8(wording.key), QString::fromUtf8(wording.format), {}});
    }
    return all;
}

}  // namespace sargan
