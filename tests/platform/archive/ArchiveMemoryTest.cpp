#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QTest>
#include <functional>
#include <vector>

#include "ArchiveTests.h"
#include "Assemble.h"
#include "platform/archive/ArchiveReader.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool underSanitizer = true;
#elif defined(__has_feature)
constexpr bool underSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool underSanitizer = false;
#endif

constexpr qint64 mebi = 1024 * 1024;
/// Rounds the archives to about this size: large enough that what grows with the file shows.
constexpr qint64 fileSize = 4 * mebi;

/// A field of this process's memory report, in bytes.
qint64 memoryField(const char* name) {
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly)) return -1;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.mid(qstrlen(name)).simplified().split(' ').first().toLongLong() * 1024;
    }
    return -1;
}

struct Outcome {
    qint64 rise = -1;  ///< how far memory rose above what it was at the start
    bool refused = false;
};

/// Runs the work in a child process.
Outcome outcomeOf(const std::function<void()>& work) {
    // Memory that was freed and not given back would hide what the child takes.
    ::malloc_trim(0);
    int ends[2];
    if (::pipe(ends) != 0) return {};
    const pid_t child = ::fork();
    if (child == 0) {
        Outcome outcome;
        const qint64 before = memoryField("VmRSS:");
        try {
            work();
        } catch (const ArchiveError&) {
            outcome.refused = true;
        }
        outcome.rise = memoryField("VmHWM:") - before;
        const bool told = ::write(ends[1], &outcome, sizeof(outcome)) == sizeof(outcome);
        ::_exit(told ? 0 : 1);
    }
    ::close(ends[1]);
    Outcome outcome;
    if (::read(ends[0], &outcome, sizeof(outcome)) != sizeof(outcome)) outcome.rise = -1;
    ::close(ends[0]);
    ::waitpid(child, nullptr, 0);
    return outcome;
}

QByteArray unknownRoot(const QByteArray& groups) {
    return archiveOf(assemble("84 01 '@' 84 84 84 01 'U' 03 84 84 08 'NSObject' 00 85") + groups +
                     assemble("86"));
}

QByteArray length32(qint64 value) {
    QByteArray bytes("\x82");
    for (int i = 0; i < 4; ++i) bytes += char(value >> 8 * i & 0xff);
    return bytes;
}

/// One group of `count` values of a type, each spelled the same.
QByteArray manyValues(const char* type, const char* value) {
    const qint64 count = fileSize / assemble(value).size();
    const QByteArray encoding = '[' + QByteArray::number(count) + type + ']';
    return unknownRoot("\x84" + QByteArray(1, char(encoding.size())) + encoding +
                       assemble(value).repeated(count));
}

QByteArray manyElements(const char* element) {
    const qint64 count = fileSize / assemble(element).size();
    return rootArray("", length32(count) + assemble("92 84 84 84 01 'R' 01 95 86") +
                             assemble(element).repeated(count - 1));
}

/// The first double of an array: see firstNumber().
QByteArray number() {
    return firstNumber("", 'd').mid(4);
}

/// An array of these elements, then references to the first, then a last one.
QByteArray manyNumbers(const QByteArray& first, int objects, const QByteArray& last = {}) {
    return recordOf(assemble("92 84 93 96") + length32(fileSize / 2) + first +
                    assemble("92 99").repeated(fileSize / 2 - objects) + last + assemble("86"));
}

QByteArray reference32(int index) {
    return length32(index - 110);
}

using Make = std::function<QByteArray()>;

enum class Reading { Tree, Records, Numbers, Arrays, Texts };

}  // namespace

Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Reading)

class ArchiveMemoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { ::mallopt(M_MMAP_THRESHOLD, 128 * 1024); }
    void readingStaysWithinItsMemory_data();
    void readingStaysWithinItsMemory();
};

void ArchiveMemoryTest::readingStaysWithinItsMemory_data() {
    if (underSanitizer) QSKIP("the sanitizer's own memory would be counted");
    QTest::addColumn<Make>("make");
    QTest::addColumn<Reading>("reading");
    QTest::addColumn<bool>("refused");
    const auto row = [](const char* name, Reading reading, const Make& make) {
        QTest::newRow(name) << make << reading << false;
    };
    row("new C strings of new texts", Reading::Tree, [] { return manyValues("*", "84 84 00"); });
    row("new C strings of one text", Reading::Tree, [] { return manyValues("*", "84 93"); });
    row("new selectors", Reading::Tree, [] { return manyValues("%", "84 00"); });
    row("new classes", Reading::Tree, [] { return manyValues("#", "84 93 00 85"); });
    row("integers", Reading::Tree, [] { return manyValues("i", "05"); });
    row("structs", Reading::Tree, [] { return manyValues("{={={={=c}}}}", "05"); });
    row("objects", Reading::Tree, [] { return manyElements("92 84 97 86"); });
    row("records", Reading::Records, [] { return manyElements("92 84 97 86"); });
    row("records again", Reading::Records, [] { return manyElements("92 96"); });
    row("numbers", Reading::Numbers, [] { return manyNumbers(number() + assemble("05 86"), 1); });
    row("numbers of two kinds", Reading::Numbers,
        [] { return manyNumbers(number() + assemble("05 86 92 84 9a 9a 84 96 96 05 86"), 2); });
    row("numbers before an unknown object", Reading::Numbers,
        [] { return manyNumbers(number() + assemble("05 86"), 2, assemble("92 84 84 84 01 'U' 00 95 86")); });
    row("unknown objects", Reading::Numbers,
        [] { return manyNumbers(assemble("92 84 84 84 01 'U' 00 95 86"), 1); });
    row("numbers in full", Reading::Numbers, [] {
        return recordOf(assemble("92 84 93 96") + length32(fileSize / 8 + 1) + number() + assemble("05 86") +
                        assemble("92 84 9a 9a 9c 9b 05 86").repeated(fileSize / 8) + assemble("86"));
    });
    const Make falseCount = [] {
        return recordOf(assemble("92 84 93 96") + length32(fileSize / 2) + number() + assemble("05 86") +
                        assemble("92 84 9a 9a 9c 9b 05 86").repeated(fileSize / 8));
    };
    QTest::newRow("a false count") << falseCount << Reading::Numbers << true;
    row("arrays", Reading::Arrays, [] {
        return recordOf(firstNumber("01", 'd') + assemble("05 86 86") +
                        (assemble("92 84 93 96 20") + assemble("92 99").repeated(32) + assemble("86"))
                            .repeated(fileSize / 70));
    });
    row("short texts and references to them", Reading::Texts, [] {
        QByteArray groups = assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+' 01 'a' 86");
        for (int i = 0; groups.size() < fileSize; ++i) {
            groups += assemble("92 84 99 99 01 'a' 86 92") + reference32(i + 8);
        }
        return recordOf(groups);
    });
    row("a long text", Reading::Texts, [] {
        return recordOf(assemble("92 84 84 84 08 'NSString' 01 95 84 01 '+'") + length32(fileSize) +
                        QByteArray(fileSize, 'x') + assemble("86 92 98"));
    });
}

namespace {

/// Reads as the row says, keeping what a caller would keep.
void readAll(const QByteArray& bytes, Reading reading) {
    if (reading == Reading::Tree) {
        Archive::read(bytes);
        return;
    }
    ArchiveReader reader(bytes);
    ArchivedObject kept;
    std::vector<NumberArray> arrays;
    QString text;
    const quint32 count = reader.beginRootArray();
    for (quint32 i = 0; i < count; ++i) {
        if (!reader.beginElement("R").isNew) continue;
        if (reading == Reading::Numbers) arrays.push_back(reader.readNumbers(kept));
        while (reading == Reading::Arrays && reader.offset() < bytes.size() - 2) {
            arrays.push_back(reader.readNumbers(kept));
        }
        while (reading == Reading::Texts && reader.offset() < bytes.size() - 2) text = reader.readText(kept);
        reader.endElement();
    }
    reader.endRootArray();
}

}  // namespace

void ArchiveMemoryTest::readingStaysWithinItsMemory() {
    QFETCH(Make, make);
    QFETCH(Reading, reading);
    QFETCH(bool, refused);
    const QByteArray bytes = make();
    const Outcome outcome = outcomeOf([&] { readAll(bytes, reading); });
    const qint64 rise = outcome.rise;
    QVERIFY(rise >= 0);
    QCOMPARE(outcome.refused, refused);
    // The bytes themselves are the eighth part.
    const qint64 most = 64 * mebi + 7 * bytes.size();
    const QString report =
        u"%1 MiB above the bytes for a file of %2 MiB, %3 times its size"_s.arg(rise / mebi)
            .arg(bytes.size() / mebi)
            .arg(double(rise) / double(bytes.size()), 0, 'f', 1);
    if (qEnvironmentVariableIsSet("SARGAN_TEST_REPORT")) qInfo().noquote() << report;
    QVERIFY2(rise <= most, qPrintable(report));
    // Nothing grows by more than seven times the file; a fixed part of a few megabytes is left over.
    QVERIFY2(rise <= 4 * mebi + 7 * bytes.size(), qPrintable(report));
}

int runArchiveMemoryTest(int argc, char** argv) {
    ArchiveMemoryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ArchiveMemoryTest.moc"
