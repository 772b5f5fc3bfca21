#pragma once

#include <QList>
#include <QString>
#include <stdexcept>

#include "platform/files/FileMessage.h"

namespace sargan {

enum class ReadProblem {
    BadName,       ///< empty, too long, or with a character that no file name can have
    Missing,       ///< no such file or folder, or a link that leads nowhere
    Directory,     ///< a folder stands at that name
    NotAFile,      ///< a pipe, socket or device
    NoPermission,  ///< the file or its folder may not be read
    TooLarge,      ///< more bytes than the caller accepts
    Io,            ///< any other failure of the system
};

/// A file that could not be read as a whole.
class ReadError : public std::runtime_error {
public:
    /// `path` as the caller named it; `systemError` an errno value, 0 when no system call failed.
    ReadError(ReadProblem reason, QString path, int systemError = 0);

    ReadProblem reason() const { return _reason; }
    const QString& path() const { return _path; }
    int systemError() const { return _systemError; }

    /// Names the file and says why.
    FileMessage message() const;
    /// Every message that there can be, without arguments: what a catalogue has to translate.
    static QList<FileMessage> allMessages();
    QString sentence() const { return message().text(); }

private:
    ReadProblem _reason;
    QString _path;
    int _systemError;
};

}  // namespace sargan
