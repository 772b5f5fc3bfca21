// Saves version after version of one file and tells on standard output which were saved: what the scripts
// that kill it and let its system calls fail need.
//
//   save_stress FILE SIZE FIRST [COUNT]
//
// Version k is blocks of 64 KiB (the last one may be shorter), each "version k block i\n" repeated and cut.
// Exit status: 0 all saved, 1 not saved and unchanged, 2 replaced but not confirmed, 3 saved but the report
// could not be written, 64 wrong arguments.

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>

#include "platform/files/SafeFile.h"

namespace {

constexpr qint64 blockSize = 65'536;

QByteArray version(qint64 number, qint64 size) {
    QByteArray bytes;
    bytes.reserve(size + blockSize);
    for (qint64 block = 0; bytes.size() < size; ++block) {
        const QByteArray line =
            "version " + QByteArray::number(number) + " block " + QByteArray::number(block) + "\n";
        bytes += line.repeated(blockSize / line.size() + 1).left(std::min(blockSize, size - bytes.size()));
    }
    return bytes;
}

bool report(qint64 number) {
    const QByteArray line = QByteArray::number(number) + '\n';
    return ::write(STDOUT_FILENO, line.constData(), static_cast<size_t>(line.size())) == line.size();
}

int saveVersions(const QString& path, qint64 size, qint64 first, qint64 count) {
    sargan::SaveOptions options{.keepBackup = true};
    if (QFileInfo::exists(path)) options.expected = sargan::readStampedFile(path).stamp;
    for (qint64 number = first; number < first + count; ++number) {
        options.expected = sargan::saveFile(path, version(number, size), options);
        if (!report(number)) return 3;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4 || argc > 5) return 64;
    const auto number = [&](int at) { return QByteArray(argv[at]).toLongLong(); };
    try {
        return saveVersions(QFile::decodeName(argv[1]), number(2), number(3),
                            argc == 5 ? number(4) : 1'000'000'000);
    } catch (const sargan::SaveError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return error.replaced() ? 2 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
