#include <fcntl.h>
#include <sys/file.h>

#include <QFile>
#include <vector>

#include "platform/files/Attributes.h"
#include "platform/files/FileSizeSignal.h"
#include "platform/files/SafeFile.h"
#include "platform/files/SaveTarget.h"
#include "platform/files/ScratchFile.h"

namespace sargan {

namespace {

constexpr size_t readPiece = size_t{1} << 20;
constexpr mode_t newFileMode = 0666;  // less what the person's umask takes away
constexpr mode_t privateMode = 0600;  // until the old file's own mode is set

enum class Stage { Prepare, Write, Flush, Backup, Replace, Confirm };

SaveProblem problemOf(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
            return SaveProblem::NoFolder;
        case EACCES:
        case EPERM:
            return SaveProblem::NoPermission;
        case EROFS:
            return SaveProblem::ReadOnly;
        case EISDIR:
        case ELOOP:
        case ENXIO:
            return SaveProblem::NotAFile;
        case ENOSPC:
        case EDQUOT:
            return SaveProblem::DiskFull;
        case EFBIG:
            return SaveProblem::TooLarge;
        case ENAMETOOLONG:
        case EILSEQ:
            return SaveProblem::BadName;
        default:
            return SaveProblem::Io;
    }
}

SaveProblem problemOf(Stage stage, int error) {
    if (stage == Stage::Confirm) return SaveProblem::NotDurable;
    if (stage == Stage::Backup) return SaveProblem::Backup;
    const SaveProblem problem = problemOf(error);
    const bool noRoom = problem == SaveProblem::DiskFull || problem == SaveProblem::TooLarge;
    return stage == Stage::Flush && !noRoom ? SaveProblem::Flush : problem;
}

FileStamp stampOfOpenFile(FileSystem& system, int file) {
    std::vector<char> buffer(readPiece);
    StampBuilder builder;
    readPieces(system, file, buffer, [&](QByteArrayView piece) {
        builder.add(piece);
        return true;
    });
    return builder.stamp();
}

bool isSameContent(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino && one.st_size == other.st_size &&
           one.st_mtim.tv_sec == other.st_mtim.tv_sec && one.st_mtim.tv_nsec == other.st_mtim.tv_nsec;
}

bool cannotLink(int error) {
    return error == EPERM || error == EACCES || error == EOPNOTSUPP || error == ENOSYS || error == EMLINK ||
           error == EINVAL;
}

/// One save. The order is the point: nothing under the file's own name changes before the new version is on
/// the disk, and nothing is reported before the disk has confirmed the name.
class SaveOperation {
public:
    SaveOperation(const QString& path, const SaveOptions& options, FileSystem& system)
        : _path(path), _options(options), _system(system), _folder(system), _oldFile(system) {}

    void run(const QByteArray& bytes);

private:
    void steps(const QByteArray& bytes);
    void openFolder();
    void openOldFile();
    void checkUnchanged();
    void checkStillUnchanged();
    void writeNewVersion(ScratchFile& scratch, const QByteArray& bytes);
    void keepBackup();
    void copyBackup(const std::string& backup);
    void confirm();
    bool minds() const { return _options.expected && !_options.overwriteChanged; }
    bool statusOfName(struct stat& status);

    const QString& _path;
    const SaveOptions& _options;
    FileSystem& _system;
    SaveTarget _target;
    Descriptor _folder;
    Descriptor _oldFile;  ///< none when there is no old version
    struct stat _old {};
    Stage _stage = Stage::Prepare;
};

void SaveOperation::run(const QByteArray& bytes) {
    if (!isPossiblePath(_path)) throw SaveError(SaveProblem::BadName, _path);
    const FileSizeSignalHeld held;
    try {
        steps(bytes);
    } catch (const SystemFailure& failure) {
        throw SaveError(problemOf(_stage, failure.error), _path, failure.error);
    }
}

void SaveOperation::steps(const QByteArray& bytes) {
    _target = resolveSaveTarget(_system, _path);
    openFolder();
    // Before the old file is locked: a name left by a killed save may be one more name of that very file.
    sweepScratchNames(_system, _folder.get());
    openOldFile();
    checkUnchanged();

    _stage = Stage::Write;
    ScratchFile scratch(_system, _folder.get(), _oldFile ? privateMode : newFileMode);
    writeNewVersion(scratch, bytes);

    checkStillUnchanged();
    if (_options.keepBackup && _oldFile) keepBackup();
    _stage = Stage::Replace;
    scratch.renameTo(_target.name);
    confirm();
}

void SaveOperation::openFolder() {
    const int flags = O_RDONLY | O_DIRECTORY;
    _folder = Descriptor(_system, checked([&] { return _system.open(_target.folder.c_str(), flags); }));
}

bool SaveOperation::statusOfName(struct stat& status) {
    const char* name = _target.name.c_str();
    if (uninterrupted([&] { return _system.statusAt(_folder.get(), name, status); }) == 0) return true;
    if (errno == ENOENT) return false;
    throw SystemFailure{errno};
}

void SaveOperation::openOldFile() {
    if (!statusOfName(_old)) return;
    if (!S_ISREG(_old.st_mode)) throw SaveError(SaveProblem::NotAFile, _path);
    const char* name = _target.name.c_str();
    // A rename would replace a write-protected file without a word.
    checked([&] { return _system.checkWritableAt(_folder.get(), name); });
    const int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    _oldFile = Descriptor(_system, checked([&] { return _system.openAt(_folder.get(), name, flags, 0); }));
    checked([&] { return _system.status(_oldFile.get(), _old); });
    if (!S_ISREG(_old.st_mode)) throw SaveError(SaveProblem::NotAFile, _path);
    // So that nobody sweeps away the second name that the backup gives it. Without it a sweep at the wrong
    // moment makes the save fail, and that is reported.
    _system.lock(_oldFile.get(), LOCK_SH | LOCK_NB);
}

void SaveOperation::checkUnchanged() {
    if (!minds() || !_oldFile) return;
    const bool same = _old.st_size == _options.expected->size &&
                      stampOfOpenFile(_system, _oldFile.get()) == *_options.expected;
    if (!same) throw SaveError(SaveProblem::ChangedOnDisk, _path);
}

// Writing a large file takes long enough for another program to save the same file meanwhile.
void SaveOperation::checkStillUnchanged() {
    if (!minds()) return;
    struct stat now;
    const bool there = statusOfName(now);
    const bool unchanged = there ? _oldFile && isSameContent(_old, now) : true;
    if (!unchanged) throw SaveError(SaveProblem::ChangedOnDisk, _path);
}

void SaveOperation::writeNewVersion(ScratchFile& scratch, const QByteArray& bytes) {
    writeAll(_system, scratch.file(), bytes);
    if (_oldFile) takeOverAttributes(_system, _oldFile.get(), _old, scratch.file());
    _stage = Stage::Flush;
    scratch.sync();
    scratch.close();
}

void SaveOperation::keepBackup() {
    _stage = Stage::Backup;
    const std::string backup = _target.name + "~";
    try {
        ScratchLink(_system, _folder.get(), _target.name).renameTo(backup);
    } catch (const SystemFailure& failure) {
        if (!cannotLink(failure.error)) throw;
        copyBackup(backup);
    }
}

void SaveOperation::copyBackup(const std::string& backup) {
    const int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    const char* name = _target.name.c_str();
    const Descriptor old(_system, checked([&] { return _system.openAt(_folder.get(), name, flags, 0); }));
    ScratchFile copy(_system, _folder.get(), privateMode);
    std::vector<char> buffer(readPiece);
    readPieces(_system, old.get(), buffer, [&](QByteArrayView piece) {
        writeAll(_system, copy.file(), piece);
        return true;
    });
    takeOverAttributes(_system, old.get(), _old, copy.file());
    copy.sync();
    copy.close();
    copy.renameTo(backup);
}

// The names are only safe when the folder itself is on the disk. Where folders cannot be flushed alone, the
// whole file system can.
void SaveOperation::confirm() {
    _stage = Stage::Confirm;
    if (uninterrupted([&] { return _system.sync(_folder.get()); }) == 0) return;
    if (errno != EINVAL) throw SystemFailure{errno};
    checked([&] { return _system.syncWholeFileSystem(_folder.get()); });
}

}  // namespace

FileStamp saveFile(const QString& path, const QByteArray& bytes, const SaveOptions& options) {
    return saveFile(path, bytes, options, FileSystem::system());
}

FileStamp saveFile(const QString& path, const QByteArray& bytes, const SaveOptions& options,
                   FileSystem& system) {
    SaveOperation(path, options, system).run(bytes);
    return stampOf(bytes);
}

QString backupPath(const QString& path) {
    try {
        const SaveTarget target = resolveSaveTarget(FileSystem::system(), path);
        return QFile::decodeName(QByteArray::fromStdString(target.path() + "~"));
    } catch (const SystemFailure&) {
        return path + u'~';
    }
}

}  // namespace sargan
