#pragma once

#include <QList>
#include <QString>
#include <stdexcept>

#include "platform/files/FileMessage.h"

namespace sargan {

enum class SaveProblem {
    BadName,        ///< empty, too long, or with a character that no file name can have
    NoFolder,       ///< the folder is not there (any more)
    NoPermission,   ///< the folder or the file may not be written to
    ReadOnly,       ///< the whole file system is read-only
    NotAFile,       ///< a folder, device, pipe or endless link stands at that name
    DiskFull,       ///< no space, or the quota is used up
    TooLarge,       ///< larger than the file system or the process limit allows
    ChangedOnDisk,  ///< the file is not the one that was read
    Backup,         ///< the previous version could not be kept; a save without backup may still succeed
    Flush,          ///< the disk did not confirm the data
    Io,             ///< any other failure of the system
    NotDurable,     ///< the new version is in place, but the disk did not confirm its name
};

/// A save that did not fully succeed. Unless replaced() is true the file at that name is what it was before
/// the call and no temporary file was left (a temporary that could not be removed is removed by the next
/// save in that folder).
class SaveError : public std::runtime_error {
public:
    /// `path` as the caller named it; `systemError` an errno value, 0 when no system call failed.
    SaveError(SaveProblem reason, QString path, int systemError = 0);

    SaveProblem reason() const { return _reason; }
    const QString& path() const { return _path; }
    int systemError() const { return _systemError; }

    /// True only for NotDurable: other programs already see the new version, but it may be lost, and the
    /// old one come back, in a power failure. The stamp of what is in place is stampOf(the saved bytes).
    bool replaced() const { return _reason == SaveProblem::NotDurable; }

    /// Names the file, says why, and says what became of the file.
    FileMessage message() const;
    /// Every message that there can be, without arguments: what a catalogue has to translate.
    static QList<FileMessage> allMessages();
    QString sentence() const { return message().text(); }

private:
    SaveProblem _reason;
    QString _path;
    int _systemError;
};

}  // namespace sargan
