#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "platform/files/FileStamp.h"
#include "platform/files/ReadError.h"
#include "platform/files/SaveError.h"

namespace sargan {

class FileSystem;

/// More than any document or import holds; protects the memory from a file picked by mistake.
inline constexpr qint64 largestReadableFile = qint64{2} << 30;

/// A file's content and the stamp by which a later save tells whether the file is still this one.
struct ReadResult {
    QByteArray bytes;
    FileStamp stamp;
};

/// The whole content of a regular file; links are followed. Anything else at that name (folder, pipe,
/// socket, device) is refused without waiting for it. Throws ReadError.
QByteArray readFile(const QString& path, qint64 largest = largestReadableFile);
QByteArray readFile(const QString& path, qint64 largest, FileSystem& system);

/// The same, with its stamp.
ReadResult readStampedFile(const QString& path, qint64 largest = largestReadableFile);

struct SaveOptions {
    /// The stamp of the file as it was read or last saved: if the file there no longer has it, the save is
    /// refused with ChangedOnDisk. A file that has disappeared is written anew, since nothing is lost by it.
    /// Without a stamp whatever file is there is replaced.
    std::optional<FileStamp> expected = std::nullopt;
    /// The person was asked and wants to replace the changed file.
    bool overwriteChanged = false;
    /// Keeps the replaced version beside the file as "name~" (in place of an older one).
    bool keepBackup = false;
};

/// Makes `bytes` the content of the file at `path`: after it returns, the new version has been confirmed by
/// the disk, name and all; whenever it is interrupted, even by a kill or a power failure, the file is wholly
/// the old version or wholly the new one. A link stays a link and its target is replaced. Permissions,
/// group, and (where allowed) owner and extended attributes of an existing file are kept; other hard links
/// to it keep the old version. The folder has to exist and to be writable and readable.
/// Returns the stamp to expect at the next save. Throws SaveError, which says whether the file was replaced.
FileStamp saveFile(const QString& path, const QByteArray& bytes, const SaveOptions& options = {});
FileStamp saveFile(const QString& path, const QByteArray& bytes, const SaveOptions& options,
                   FileSystem& system);

/// Where saveFile keeps the previous version of `path`: beside the file that a link leads to.
QString backupPath(const QString& path);

}  // namespace sargan
