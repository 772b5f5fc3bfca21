// How long a safe save takes, against writing the same bytes to a fresh file with one flush:
//
//   save_timing FOLDER SIZE ROUNDS
//
// Prints the median, in milliseconds, of each way; the ways take turns, so that both meet the same disk.

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "platform/files/SafeFile.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(qint64 size) {
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char& byte : bytes) byte = static_cast<char>((state = state * 1664525 + 1013904223) >> 24);
    return bytes;
}

bool writePlainly(const QString& path, const QByteArray& bytes) {
    QFile::remove(path);
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(file, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
        if (count <= 0) break;
        done += count;
    }
    const bool flushed = ::fsync(file) == 0;
    return ::close(file) == 0 && flushed && done == bytes.size();
}

class Way {
public:
    Way(const char* name, std::function<bool()> action) : _name(name), _action(std::move(action)) {}

    void run() {
        QElapsedTimer timer;
        timer.start();
        if (!_action()) throw std::runtime_error("the write failed");
        _times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }

    void print() {
        std::sort(_times.begin(), _times.end());
        std::printf("%-28s median %.1f ms, least %.1f ms, most %.1f ms\n", _name, _times[_times.size() / 2],
                    _times.front(), _times.back());
    }

private:
    const char* _name;
    std::function<bool()> _action;
    std::vector<double> _times;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return 64;
    const QDir folder(QFile::decodeName(argv[1]));
    const QByteArray bytes = contentOf(QByteArray(argv[2]).toLongLong());
    const QString safe = folder.filePath(u"safe"_s);
    sargan::SaveOptions careful{.keepBackup = true};
    std::vector<Way> ways;
    ways.emplace_back("plain write and flush",
                      [&] { return writePlainly(folder.filePath(u"plain"_s), bytes); });
    ways.emplace_back("safe save", [&] {
        sargan::saveFile(folder.filePath(u"simple"_s), bytes);
        return true;
    });
    ways.emplace_back("safe save, stamp and backup", [&] {
        careful.expected = sargan::saveFile(safe, bytes, careful);
        return true;
    });
    for (int round = 0; round < QByteArray(argv[3]).toInt(); ++round) {
        for (Way& way : ways) way.run();
    }
    for (Way& way : ways) way.print();
    for (const QString& name : {u"plain"_s, u"simple"_s, u"safe"_s, u"safe~"_s})
        QFile::remove(folder.filePath(name));
    return 0;
}
