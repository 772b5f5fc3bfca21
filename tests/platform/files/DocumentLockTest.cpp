#include "platform/files/DocumentLock.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include <QTest>
#include <array>

#include "FileTests.h"
#include "Folder.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using State = DocumentLock::State;

namespace {

const QString document = u"dives"_s;
const QString lockName = u".dives.lock"_s;

/// Another program that takes the lock of `path`, then ends (or is told to end) without giving it back.
class OtherProgram {
public:
    explicit OtherProgram(const QString& path) {
        if (::pipe(_ready.data()) != 0 || ::pipe(_stop.data()) != 0) throw std::runtime_error("pipe");
        _process = ::fork();
        if (_process == 0) live(path);
        ::close(_ready[1]);
        ::close(_stop[0]);
        char answer = '?';
        _hasLock = ::read(_ready[0], &answer, 1) == 1 && answer == 'y';
    }
    ~OtherProgram() { end(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    bool hasLock() const { return _hasLock; }
    qint64 process() const { return _process; }

    void end() {
        if (_stop[1] < 0) return;
        ::close(_stop[1]);
        ::waitpid(_process, nullptr, 0);
        ::close(_ready[0]);
        _stop[1] = -1;
    }

private:
    [[noreturn]] void live(const QString& path) {
        ::close(_stop[1]);
        DocumentLock lock(path);
        char answer = lock.tryLock() && lock.state() == State::Held ? 'y' : 'n';
        if (::write(_ready[1], &answer, 1) == 1 && ::read(_stop[0], &answer, 1) < 0) ::_exit(1);
        ::_exit(0);
    }

    std::array<int, 2> _ready{};
    std::array<int, 2> _stop{};
    pid_t _process = 0;
    bool _hasLock = false;
};

}  // namespace

class DocumentLockTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isHeldUntilGivenBack() {
        const Folder folder;
        folder.put(document, "x");
        {
            DocumentLock lock(folder.path(document));
            QCOMPARE(lock.state(), State::Open);
            QVERIFY(lock.tryLock());
            QCOMPARE(lock.state(), State::Held);
            QVERIFY(lock.tryLock());
            QCOMPARE(folder.names(), (QStringList{lockName, document}));
            lock.unlock();
            QCOMPARE(lock.state(), State::Open);
            QCOMPARE(folder.names(), QStringList{document});
            QVERIFY(lock.tryLock());
        }
        QCOMPARE(folder.names(), QStringList{document});
    }

    void tellsTwoWindowsOfOneProgramApart() {
        const Folder folder;
        DocumentLock first(folder.path(document));
        QVERIFY(first.tryLock());
        DocumentLock second(folder.path(document));
        QVERIFY(!second.tryLock());
        QCOMPARE(second.state(), State::Elsewhere);
        QCOMPARE(second.owner().process, qint64{::getpid()});
        QVERIFY(!second.takeOver());
        first.unlock();
        QVERIFY(second.tryLock());
        QCOMPARE(second.state(), State::Held);
        QCOMPARE(second.owner().process, qint64{0});
    }

    void isSharedByAllLinksToTheFile() {
        const Folder folder;
        folder.put(document, "x");
        QDir(folder.path()).mkdir(u"inner"_s);
        QFile::link(folder.path(document), folder.path(u"inner/link"_s));
        DocumentLock direct(folder.path(document));
        DocumentLock throughLink(folder.path(u"inner/link"_s));
        QVERIFY(direct.tryLock());
        QVERIFY(!throughLink.tryLock());
    }

    void keepsDifferentDocumentsApart() {
        const Folder folder;
        DocumentLock one(folder.path(u"one"_s));
        DocumentLock other(folder.path(u"other"_s));
        QVERIFY(one.tryLock() && other.tryLock());
        QCOMPARE(one.state(), State::Held);
        QCOMPARE(other.state(), State::Held);
    }

    void namesTheProgramThatHasIt() {
        const Folder folder;
        OtherProgram other(folder.path(document));
        QVERIFY(other.hasLock());
        DocumentLock lock(folder.path(document));
        QVERIFY(!lock.tryLock());
        QCOMPARE(lock.owner().process, other.process());
        QCOMPARE(lock.owner().host, QSysInfo::machineHostName());
        QVERIFY(!lock.owner().program.isEmpty());
        QVERIFY(!lock.takeOver());
        QCOMPARE(lock.state(), State::Elsewhere);
    }

    void takesTheLockOfAProgramThatIsGone() {
        const Folder folder;
        OtherProgram other(folder.path(document));
        QVERIFY(other.hasLock());
        other.end();
        QVERIFY(!folder.content(lockName).isNull());
        DocumentLock lock(folder.path(document));
        QVERIFY(lock.tryLock());
        QCOMPARE(lock.state(), State::Held);
    }

    void leavesTheLockOfAnotherComputerToThePerson() {
        const Folder folder;
        folder.put(lockName, "4711\nsargan\nother-computer\n\n\n");
        DocumentLock lock(folder.path(document));
        QVERIFY(!lock.tryLock());
        QCOMPARE(lock.owner().process, qint64{4711});
        QCOMPARE(lock.owner().host, u"other-computer"_s);
        QVERIFY(lock.takeOver());
        QCOMPARE(lock.state(), State::Held);
    }

    void takesALockThatNamesNobody_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("zeros after a power failure") << QByteArray(40, '\0');
        QTest::newRow("other text") << QByteArray("not a lock\n");
    }
    void takesALockThatNamesNobody() {
        QFETCH(QByteArray, content);
        const Folder folder;
        folder.put(lockName, content);
        DocumentLock lock(folder.path(document));
        QVERIFY(lock.tryLock());
        QCOMPARE(lock.state(), State::Held);
    }

    void nothingIsPreventedWhereNoLockCanBeMade_data() {
        QTest::addColumn<QString>("path");
        QTest::newRow("missing folder") << u"none/dives"_s;
        QTest::newRow("empty name") << u""_s;
        QTest::newRow("name too long for a lock beside it") << QString(255, u'n');
        QTest::newRow("something else has the name") << u"taken"_s;
        QTest::newRow("a pipe has the name") << u"pipe"_s;
    }
    void nothingIsPreventedWhereNoLockCanBeMade() {
        QFETCH(QString, path);
        const Folder folder;
        QDir(folder.path()).mkdir(u".taken.lock"_s);
        QVERIFY(::mkfifo(QFile::encodeName(folder.path(u".pipe.lock"_s)).constData(), 0600) == 0);
        DocumentLock lock(path.isEmpty() ? path : folder.path(path));
        QVERIFY(lock.tryLock());
        QCOMPARE(lock.state(), State::Unavailable);
    }

    void nothingIsPreventedInAReadOnlyFolder() {
        const Folder folder;
        folder.put(document, "x");
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0555) == 0);
        DocumentLock lock(folder.path(document));
        bool mayOpen = false;
        {
            const OrdinaryPerson person;
            mayOpen = lock.tryLock();
        }
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0700) == 0);
        QVERIFY(mayOpen);
        QCOMPARE(lock.state(), State::Unavailable);
    }
};

int runDocumentLockTest(int argc, char** argv) {
    DocumentLockTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DocumentLockTest.moc"
