#include <sys/stat.h>

#include <QTest>

#include "FaultyFileSystem.h"
#include "FileTests.h"
#include "Folder.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QByteArray oldest = QByteArray(700, 'a');
const QByteArray older = QByteArray(5'000, 'b');
const QByteArray newest = QByteArray(9'000, 'c');
const QString file = u"dives"_s;
const QString backup = u"dives~"_s;

/// What is saved and how; the fault comes on top.
struct Scenario {
    bool exists = true;
    bool link = false;
    bool linksPossible = true;
    SaveOptions options = {};
};

Scenario scenarioNamed(const QString& name) {
    const SaveOptions careful{.expected = stampOf(older), .keepBackup = true};
    if (name == u"new file") return {.exists = false};
    if (name == u"plain") return {};
    if (name == u"backup and stamp") return {.options = careful};
    if (name == u"through a link") return {.link = true, .options = careful};
    return {.linksPossible = false, .options = careful};  // "backup by copy"
}

enum class Outcome { Saved, Refused, Unconfirmed };

/// One save with faults in a folder of its own, and what is true afterwards.
class Attempt {
public:
    explicit Attempt(const QString& scenario) : _scenario(scenarioNamed(scenario)) {
        QDir(_folder.path()).mkdir(u"place"_s);
        if (_scenario.exists) {
            put(file, older);
            put(backup, oldest);
        }
        if (_scenario.link) QFile::link(u"place/dives"_s, _folder.path(u"link"_s));
    }

    Outcome run(const std::function<int(const FaultyFileSystem::Call&)>& fault) {
        system.fault = [&](const FaultyFileSystem::Call& call) {
            if (!_scenario.linksPossible && call.name == "linkAt") return EPERM;
            const int error = fault(call);
            injected += error ? 1 : 0;
            return error;
        };
        const QString path = _folder.path(_scenario.link ? u"link"_s : u"place/dives"_s);
        error = errorOf<SaveError>([&] {
            if (!(saveFile(path, newest, _scenario.options, system) == stampOf(newest))) {
                throw std::logic_error("wrong stamp");
            }
        });
        if (!error) return Outcome::Saved;
        return error->replaced() ? Outcome::Unconfirmed : Outcome::Refused;
    }

    QByteArray content(const QString& name) const { return _folder.content(u"place/"_s + name); }

    QStringList names() const {
        return QDir(_folder.path(u"place"_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    /// Nothing when the disk is as the outcome says, otherwise what is wrong.
    QString contradiction(Outcome outcome) const {
        const QByteArray before = _scenario.exists ? older : QByteArray();
        if (content(file) != (outcome == Outcome::Refused ? before : newest)) return u"wrong content"_s;
        const bool hasLink = QFileInfo(_folder.path(u"link"_s)).isSymLink();
        if (hasLink != _scenario.link) return u"the link is gone"_s;
        if (error && !error->sentence().contains(_scenario.link ? u"link"_s : file)) return u"sentence"_s;
        return contradictionOfBackup(outcome);
    }

    /// Another program saves another file in the same folder.
    void saveAnother() const {
        FaultyFileSystem sound;
        saveFile(_folder.path(u"place/another"_s), "its", {.keepBackup = true}, sound);
    }

    /// A save without faults, which also removes what the faults kept from being removed.
    void saveAgain() {
        FaultyFileSystem sound;
        const SaveOptions options{.keepBackup = _scenario.options.keepBackup};
        saveFile(_folder.path(u"place/dives"_s), "after", options, sound);
    }

    FaultyFileSystem system;
    std::optional<SaveError> error;
    int injected = 0;

private:
    void put(const QString& name, const QByteArray& bytes) const { _folder.put(u"place/"_s + name, bytes); }

    QString contradictionOfBackup(Outcome outcome) const {
        const QByteArray kept = content(backup);
        if (!_scenario.exists) return kept.isNull() ? QString() : u"a backup of nothing"_s;
        if (!_scenario.options.keepBackup) return kept == oldest ? QString() : u"the backup was touched"_s;
        // A refused save may have come as far as the backup.
        const bool right = kept == older || (outcome == Outcome::Refused && kept == oldest);
        return right ? QString() : u"wrong backup"_s;
    }

    Folder _folder{Folder::Where::Memory};
    Scenario _scenario;
};

}  // namespace

Q_DECLARE_METATYPE(SaveProblem)

/// Lets the first, second, … call of a save fail.
class SaveFaultsTest : public QObject {
    Q_OBJECT

private:
    static void addScenarios(std::initializer_list<int> errors) {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<int>("error");
        for (const char* scenario :
             {"new file", "plain", "backup and stamp", "through a link", "backup by copy"}) {
            for (const int error : errors) {
                QTest::addRow("%s, %s", scenario, qPrintable(qt_error_string(error)))
                    << QString::fromLatin1(scenario) << error;
            }
        }
    }

private Q_SLOTS:
    void oneFailingCallLeavesOldOrNew_data() { addScenarios({EIO, ENOSPC, EACCES, EROFS, ENOENT, EINVAL}); }
    void oneFailingCallLeavesOldOrNew() {
        QFETCH(QString, scenario);
        QFETCH(int, error);
        int refused = 0;
        int failing = 1;
        for (;; ++failing) {
            Attempt attempt(scenario);
            std::string failed;
            const Outcome outcome = attempt.run([&](const FaultyFileSystem::Call& call) {
                if (call.number == failing) failed = call.name;
                return call.number == failing ? error : 0;
            });
            const QByteArray where = QByteArray::number(failing) + " " + QByteArray::fromStdString(failed);
            const QString wrong = attempt.contradiction(outcome);
            QVERIFY2(wrong.isEmpty(), where + ": " + wrong.toUtf8());
            for (const QString& name : attempt.names()) {
                QVERIFY2(!name.startsWith(u".sargan"), where + ": a temporary is left");
            }
            refused += outcome == Outcome::Refused ? 1 : 0;
            if (attempt.injected == 0) {
                QCOMPARE(outcome, Outcome::Saved);
                break;
            }
        }
        QVERIFY(failing > 15);
        QVERIFY(refused > 5);
    }

    void aSystemThatGoesOnFailingLeavesOldOrNew_data() { addScenarios({EIO, EROFS}); }
    void aSystemThatGoesOnFailingLeavesOldOrNew() {
        QFETCH(QString, scenario);
        QFETCH(int, error);
        for (int failing = 1;; ++failing) {
            Attempt attempt(scenario);
            const Outcome outcome = attempt.run(
                [&](const FaultyFileSystem::Call& call) { return call.number >= failing ? error : 0; });
            const QString wrong = attempt.contradiction(outcome);
            QVERIFY2(wrong.isEmpty(), QByteArray::number(failing) + ": " + wrong.toUtf8());
            QVERIFY(attempt.names().size() <= 4);
            attempt.saveAgain();
            QCOMPARE(attempt.content(file), QByteArray("after"));
            for (const QString& name : attempt.names()) QVERIFY(!name.startsWith(u".sargan"));
            if (attempt.injected == 0) break;
        }
    }

    void signalsDisturbNoCall_data() { addScenarios({EINTR}); }
    void signalsDisturbNoCall() {
        QFETCH(QString, scenario);
        QFETCH(int, error);
        for (int failing = 1;; ++failing) {
            Attempt attempt(scenario);
            const Outcome outcome = attempt.run(
                [&](const FaultyFileSystem::Call& call) { return call.number == failing ? error : 0; });
            QVERIFY2(outcome == Outcome::Saved, QByteArray::number(failing));
            QCOMPARE(attempt.contradiction(outcome), QString());
            if (attempt.injected == 0) break;
        }
    }

    void savesInTheSameFolderDisturbNoCall_data() { addScenarios({0}); }
    void savesInTheSameFolderDisturbNoCall() {
        QFETCH(QString, scenario);
        bool disturbed = true;
        for (int at = 1; disturbed; ++at) {
            disturbed = false;
            Attempt attempt(scenario);
            const Outcome outcome = attempt.run([&](const FaultyFileSystem::Call& call) {
                disturbed = disturbed || call.number == at;
                if (call.number == at) attempt.saveAnother();
                return 0;
            });
            QVERIFY2(outcome == Outcome::Saved, QByteArray::number(at));
            QCOMPARE(attempt.contradiction(outcome), QString());
        }
    }

    void aCallThatIsAlwaysInterruptedEnds() {
        Attempt attempt(u"plain"_s);
        const Outcome outcome =
            attempt.run([](const FaultyFileSystem::Call& call) { return call.name == "write" ? EINTR : 0; });
        QCOMPARE(outcome, Outcome::Refused);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }

    void saysWhatFailed_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("occurrence");
        QTest::addColumn<int>("error");
        QTest::addColumn<SaveProblem>("problem");
        const auto row = [](const char* call, int occurrence, int error, SaveProblem problem) {
            QTest::addRow("%s %d, %s", call, occurrence, qPrintable(qt_error_string(error)))
                << QString::fromLatin1(call) << occurrence << error << problem;
        };
        row("open", 1, ENOENT, SaveProblem::NoFolder);
        row("open", 1, EACCES, SaveProblem::NoPermission);
        row("checkWritableAt", 1, EROFS, SaveProblem::ReadOnly);
        row("checkWritableAt", 1, EPERM, SaveProblem::NoPermission);
        row("read", 1, EIO, SaveProblem::Io);
        row("openAt", 2, EROFS, SaveProblem::ReadOnly);
        row("openAt", 2, ENOSPC, SaveProblem::DiskFull);
        row("openAt", 2, EMFILE, SaveProblem::Io);
        row("write", 1, ENOSPC, SaveProblem::DiskFull);
        row("write", 3, EDQUOT, SaveProblem::DiskFull);
        row("write", 1, EFBIG, SaveProblem::TooLarge);
        row("write", 2, EIO, SaveProblem::Io);
        row("sync", 1, EIO, SaveProblem::Flush);
        row("sync", 1, ENOSPC, SaveProblem::DiskFull);
        row("sync", 2, EIO, SaveProblem::NotDurable);
        row("sync", 2, ENOSPC, SaveProblem::NotDurable);
        row("close", 1, EIO, SaveProblem::Flush);
        row("close", 1, EDQUOT, SaveProblem::DiskFull);
        row("linkAt", 1, EIO, SaveProblem::Backup);
        row("linkAt", 1, ENOSPC, SaveProblem::Backup);
        row("renameAt", 1, EIO, SaveProblem::Backup);
        row("renameAt", 2, EIO, SaveProblem::Io);
        row("renameAt", 2, EACCES, SaveProblem::NoPermission);
        row("renameAt", 2, ENOSPC, SaveProblem::DiskFull);
    }
    void saysWhatFailed() {
        QFETCH(QString, call);
        QFETCH(int, occurrence);
        QFETCH(int, error);
        QFETCH(SaveProblem, problem);
        Attempt attempt(u"backup and stamp"_s);
        attempt.system.largestWrite = 1'000;
        const Outcome outcome = attempt.run([&](const FaultyFileSystem::Call& made) {
            return made.name == call.toStdString() && made.occurrence == occurrence ? error : 0;
        });
        QVERIFY(attempt.error);
        QCOMPARE(attempt.error->reason(), problem);
        QCOMPARE(attempt.error->systemError(), error);
        QCOMPARE(attempt.error->replaced(), problem == SaveProblem::NotDurable);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }

    void aCopiedBackupIsFlushedToo_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("occurrence");
        QTest::addColumn<SaveProblem>("problem");
        QTest::newRow("new version flushed") << u"sync"_s << 1 << SaveProblem::Flush;
        QTest::newRow("copy flushed") << u"sync"_s << 2 << SaveProblem::Backup;
        QTest::newRow("folder flushed") << u"sync"_s << 3 << SaveProblem::NotDurable;
        QTest::newRow("copy closed") << u"close"_s << 2 << SaveProblem::Backup;
        QTest::newRow("copy written") << u"write"_s << 2 << SaveProblem::Backup;
    }
    void aCopiedBackupIsFlushedToo() {
        QFETCH(QString, call);
        QFETCH(int, occurrence);
        QFETCH(SaveProblem, problem);
        Attempt attempt(u"backup by copy"_s);
        const Outcome outcome = attempt.run([&](const FaultyFileSystem::Call& made) {
            return made.name == call.toStdString() && made.occurrence == occurrence ? EIO : 0;
        });
        QVERIFY(attempt.error);
        QCOMPARE(attempt.error->reason(), problem);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }

    void writesThatTakeOnlyAPartAreContinued() {
        Attempt attempt(u"plain"_s);
        attempt.system.largestWrite = 7;
        QCOMPARE(attempt.run([](const FaultyFileSystem::Call&) { return 0; }), Outcome::Saved);
        QCOMPARE(attempt.contradiction(Outcome::Saved), QString());
    }

    void aWriteThatTakesNothingIsAFailure() {
        Attempt attempt(u"plain"_s);
        attempt.system.largestWrite = 0;
        const Outcome outcome = attempt.run([](const FaultyFileSystem::Call&) { return 0; });
        QCOMPARE(outcome, Outcome::Refused);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }

    void aRenameWhoseAnswerIsLostIsRecognised() {
        Attempt attempt(u"plain"_s);
        attempt.system.renamesBeforeFailing = true;
        const Outcome outcome =
            attempt.run([](const FaultyFileSystem::Call& call) { return call.name == "renameAt" ? EIO : 0; });
        QCOMPARE(outcome, Outcome::Saved);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }

    void savesWithoutLocks() {
        Attempt attempt(u"backup and stamp"_s);
        const Outcome outcome =
            attempt.run([](const FaultyFileSystem::Call& call) { return call.name == "lock" ? ENOLCK : 0; });
        QCOMPARE(outcome, Outcome::Saved);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }

    void savesWherePermissionsCannotBeSet() {
        Attempt attempt(u"plain"_s);
        const Outcome outcome = attempt.run(
            [](const FaultyFileSystem::Call& call) { return call.name == "changeMode" ? EPERM : 0; });
        QCOMPARE(outcome, Outcome::Saved);
        QCOMPARE(attempt.contradiction(outcome), QString());
    }
};

int runSaveFaultsTest(int argc, char** argv) {
    SaveFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SaveFaultsTest.moc"
