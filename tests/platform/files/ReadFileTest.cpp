#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <QTest>

#include "FaultyFileSystem.h"
#include "FileTests.h"
#include "Folder.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// Puts something other than a readable file at `name` in a folder and returns the path to ask for.
using Obstacle = QString (*)(const Folder& folder);

QString makeFifo(const Folder& folder) {
    const QString path = folder.path(u"pipe"_s);
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
}

QString makeSocket(const Folder& folder) {
    const QByteArray path = QFile::encodeName(folder.path(u"s"_s));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::copy_n(path.constData(), std::min<size_t>(path.size(), sizeof(address.sun_path) - 1),
                address.sun_path);
    const int made = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const int bound = ::bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof(address));
    ::close(made);
    return bound == 0 ? QFile::decodeName(path) : QString();
}

QString makeLoop(const Folder& folder) {
    QFile::link(u"one"_s, folder.path(u"two"_s));
    QFile::link(u"two"_s, folder.path(u"one"_s));
    return folder.path(u"one"_s);
}

QString makeDanglingLink(const Folder& folder) {
    QFile::link(u"nowhere"_s, folder.path(u"link"_s));
    return folder.path(u"link"_s);
}

QString makeFolder(const Folder& folder) {
    QDir(folder.path()).mkdir(u"inner"_s);
    return folder.path(u"inner"_s);
}

QString insideFile(const Folder& folder) {
    folder.put(u"file"_s, "x");
    return folder.path(u"file/dives"_s);
}

}  // namespace

Q_DECLARE_METATYPE(Obstacle)
Q_DECLARE_METATYPE(ReadProblem)

class ReadFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsWholeContent_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("one byte") << QByteArray("x");
        QTest::newRow("zero bytes inside") << QByteArray("a\0b\0", 4);
        QTest::newRow("one page less one") << QByteArray(4095, 'p');
        QTest::newRow("one page") << QByteArray(4096, 'p');
        QTest::newRow("large") << QByteArray(3'000'001, 'L');
    }
    void readsWholeContent() {
        QFETCH(QByteArray, content);
        const Folder folder;
        folder.put(u"été 1.dives"_s, content);
        const ReadResult result = readStampedFile(folder.path(u"été 1.dives"_s));
        QCOMPARE(result.bytes, content);
        QCOMPARE(result.stamp.size, content.size());
        QVERIFY(result.stamp == stampOf(content));
    }

    void followsLinks() {
        const Folder folder;
        folder.put(u"file"_s, "content");
        QFile::link(u"file"_s, folder.path(u"link"_s));
        QCOMPARE(readFile(folder.path(u"link"_s)), QByteArray("content"));
    }

    void readsFilesThatDoNotKnowTheirSize() { QVERIFY(readFile(u"/proc/self/status"_s).startsWith("Name:")); }

    void refusesWhatIsNotAFile_data() {
        QTest::addColumn<Obstacle>("obstacle");
        QTest::addColumn<ReadProblem>("problem");
        const auto row = [](const char* name, Obstacle obstacle, ReadProblem problem) {
            QTest::newRow(name) << obstacle << problem;
        };
        row(
            "missing", [](const Folder& f) { return f.path(u"none"_s); }, ReadProblem::Missing);
        row(
            "missing folder", [](const Folder& f) { return f.path(u"none/dives"_s); }, ReadProblem::Missing);
        row("below a file", insideFile, ReadProblem::Missing);
        row("link to nowhere", makeDanglingLink, ReadProblem::Missing);
        row("links in a circle", makeLoop, ReadProblem::Missing);
        row("folder", makeFolder, ReadProblem::Directory);
        row("pipe that nobody writes to", makeFifo, ReadProblem::NotAFile);
        row("socket", makeSocket, ReadProblem::NotAFile);
        row(
            "endless device", [](const Folder&) { return u"/dev/zero"_s; }, ReadProblem::NotAFile);
        row(
            "empty name", [](const Folder&) { return u""_s; }, ReadProblem::BadName);
        row(
            "NUL in the name", [](const Folder& f) { return f.path(u"a"_s) + QChar(u'\0') + u'b'; },
            ReadProblem::BadName);
        row(
            "name too long", [](const Folder& f) { return f.path(QString(256, u'n')); },
            ReadProblem::BadName);
    }
    void refusesWhatIsNotAFile() {
        QFETCH(Obstacle, obstacle);
        QFETCH(ReadProblem, problem);
        const Folder folder;
        const QString path = obstacle(folder);
        const auto error = errorOf<ReadError>([&] { readFile(path); });
        QVERIFY(error);
        QCOMPARE(error->reason(), problem);
        QCOMPARE(error->path(), path);
        QVERIFY(error->sentence().contains(path.section(u'/', -1).section(QChar(u'\0'), 0, 0)));
    }

    void refusesWhatMayNotBeRead() {
        const Folder folder;
        folder.put(u"secret"_s, "x");
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0755) == 0);
        QVERIFY(::chmod(QFile::encodeName(folder.path(u"secret"_s)).constData(), 0) == 0);
        std::optional<ReadError> error;
        {
            const OrdinaryPerson person;
            error = errorOf<ReadError>([&] { readFile(folder.path(u"secret"_s)); });
        }
        QVERIFY(error);
        QCOMPARE(error->reason(), ReadProblem::NoPermission);
    }

    void acceptsNoMoreThanTheLimit() {
        const Folder folder;
        folder.put(u"ten"_s, "0123456789");
        QCOMPARE(readFile(folder.path(u"ten"_s), 10), QByteArray("0123456789"));
        const auto error = errorOf<ReadError>([&] { readFile(folder.path(u"ten"_s), 9); });
        QVERIFY(error);
        QCOMPARE(error->reason(), ReadProblem::TooLarge);
    }

    void keepsTheLimitForAFileThatGrows() {
        const Folder folder;
        folder.put(u"log"_s, "0123456789");
        FaultyFileSystem system;
        system.fault = [&](const FaultyFileSystem::Call& call) {
            if (call.name == "read" && call.occurrence == 1) folder.put(u"log"_s, QByteArray(50'000, 'x'));
            return 0;
        };
        const auto error = errorOf<ReadError>([&] { readFile(folder.path(u"log"_s), 20'000, system); });
        QVERIFY(error);
        QCOMPARE(error->reason(), ReadProblem::TooLarge);
    }

    void reportsEveryFailingCall() {
        const Folder folder;
        folder.put(u"file"_s, QByteArray(10'000, 'x'));
        int failing = 1;
        for (;; ++failing) {
            FaultyFileSystem system;
            system.fault = [&](const FaultyFileSystem::Call& call) {
                return call.number == failing ? EIO : 0;
            };
            QByteArray bytes;
            const auto error = errorOf<ReadError>(
                [&] { bytes = readFile(folder.path(u"file"_s), largestReadableFile, system); });
            if (system.faults() == 0) break;
            // The last call closes a file that was read completely: nothing can be lost by its failure.
            if (error) QCOMPARE(error->reason(), ReadProblem::Io);
            if (!error) QCOMPARE(bytes.size(), 10'000);
        }
        QVERIFY(failing > 4);
    }

    void isNotDisturbedBySignals() {
        const Folder folder;
        folder.put(u"file"_s, QByteArray(10'000, 'x'));
        FaultyFileSystem system;
        system.fault = [&](const FaultyFileSystem::Call& call) { return call.number % 2 == 1 ? EINTR : 0; };
        QCOMPARE(readFile(folder.path(u"file"_s), largestReadableFile, system).size(), 10'000);
        QVERIFY(system.faults() > 2);
    }

    void stampTellsContentsApart_data() {
        QTest::addColumn<QByteArray>("one");
        QTest::addColumn<QByteArray>("other");
        QTest::newRow("one bit") << QByteArray("dive a") << QByteArray("dive c");
        QTest::newRow("order") << QByteArray("ab") << QByteArray("ba");
        QTest::newRow("length of zeros") << QByteArray(8, '\0') << QByteArray(9, '\0');
        QTest::newRow("empty or not") << QByteArray("") << QByteArray(1, '\0');
    }
    void stampTellsContentsApart() {
        QFETCH(QByteArray, one);
        QFETCH(QByteArray, other);
        QVERIFY(stampOf(one) == stampOf(QByteArray(one)));
        QVERIFY(!(stampOf(one) == stampOf(other)));
    }

    void stampOfPiecesIsStampOfTheWhole() {
        QByteArray whole;
        for (int i = 0; i < 100'000; ++i) whole.append(QByteArray::number(i));
        StampBuilder builder;
        for (qsizetype at = 0, step = 0; at < whole.size(); at += step) {
            step = std::min<qsizetype>(step * 2 + 1, whole.size() - at);
            builder.add(QByteArrayView(whole).sliced(at, step));
        }
        QVERIFY(builder.stamp() == stampOf(whole));
    }

    void stampIsThePublishedHash() {
        // The published 128-bit value for no input at all.
        QCOMPARE(stampOf(QByteArray()).hashHigh, 0x99aa06d3014798d8u);
        QCOMPARE(stampOf(QByteArray()).hashLow, 0x6001c324468d497fu);
    }
};

int runReadFileTest(int argc, char** argv) {
    ReadFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ReadFileTest.moc"
