#include <QFile>
#include <algorithm>
#include <new>

#include "platform/files/Descriptor.h"
#include "platform/files/SafeFile.h"
#include "platform/files/SaveTarget.h"

namespace sargan {

namespace {

ReadProblem problemOf(int error) {
    switch (error) {
        case ENOENT:
        case ENOTDIR:
        case ELOOP:
            return ReadProblem::Missing;
        case EACCES:
        case EPERM:
            return ReadProblem::NoPermission;
        case EISDIR:
            return ReadProblem::Directory;
        case ENXIO:
        case ENODEV:
            return ReadProblem::NotAFile;
        case ENAMETOOLONG:
        case EILSEQ:
            return ReadProblem::BadName;
        default:
            return ReadProblem::Io;
    }
}

// Not trusting the size that the file has now: it may grow meanwhile, and some files of the system say 0.
QByteArray readToEnd(FileSystem& system, int file, qint64 sizeNow, qint64 largest) {
    constexpr qint64 smallestStep = 4096;
    QByteArray bytes(std::min(sizeNow, largest) + 1, Qt::Uninitialized);
    qint64 filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(std::min(filled + std::max(filled, smallestStep), largest + 1));
        const auto room = static_cast<size_t>(bytes.size() - filled);
        const ssize_t count = checked([&] { return system.read(file, bytes.data() + filled, room); });
        if (count == 0) break;
        filled += count;
        if (filled > largest) throw SystemFailure{EFBIG};
    }
    bytes.truncate(filled);
    return bytes;
}

QByteArray readRegularFile(const QString& path, qint64 largest, FileSystem& system) {
    const Descriptor file = openForReading(system, QFile::encodeName(path).constData());
    struct stat status;
    checked([&] { return system.status(file.get(), status); });
    if (S_ISDIR(status.st_mode)) throw ReadError(ReadProblem::Directory, path);
    if (!S_ISREG(status.st_mode)) throw ReadError(ReadProblem::NotAFile, path);
    if (status.st_size > largest) throw ReadError(ReadProblem::TooLarge, path);
    return readToEnd(system, file.get(), status.st_size, largest);
}

}  // namespace

QByteArray readFile(const QString& path, qint64 largest) {
    return readFile(path, largest, FileSystem::system());
}

QByteArray readFile(const QString& path, qint64 largest, FileSystem& system) {
    if (!isPossiblePath(path)) throw ReadError(ReadProblem::BadName, path);
    try {
        return readRegularFile(path, largest, system);
    } catch (const SystemFailure& failure) {
        if (failure.error == EFBIG) throw ReadError(ReadProblem::TooLarge, path);
        throw ReadError(problemOf(failure.error), path, failure.error);
    } catch (const std::bad_alloc&) {
        throw ReadError(ReadProblem::TooLarge, path);
    }
}

ReadResult readStampedFile(const QString& path, qint64 largest) {
    QByteArray bytes = readFile(path, largest);
    const FileStamp stamp = stampOf(bytes);
    return {std::move(bytes), stamp};
}

}  // namespace sargan
