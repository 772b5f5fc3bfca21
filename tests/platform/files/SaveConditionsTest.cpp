#include <sys/resource.h>
#include <sys/stat.h>

#include <QTest>
#include <csignal>

#include "FaultyFileSystem.h"
#include "FileTests.h"
#include "Folder.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// Makes a place where nothing can be saved and returns its path.
using Obstacle = QString (*)(const Folder& folder);

void setMode(const QString& path, mode_t mode) {
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0) throw std::runtime_error("chmod");
}

QString circleOfLinks(const Folder& folder) {
    QFile::link(u"two"_s, folder.path(u"one"_s));
    QFile::link(u"one"_s, folder.path(u"two"_s));
    return folder.path(u"one"_s);
}

QString linkIntoMissingFolder(const Folder& folder) {
    QFile::link(u"none/dives"_s, folder.path(u"link"_s));
    return folder.path(u"link"_s);
}

QString pipe(const Folder& folder) {
    const QString path = folder.path(u"pipe"_s);
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
}

QString innerFolder(const Folder& folder) {
    QDir(folder.path()).mkdir(u"inner"_s);
    return folder.path(u"inner"_s);
}

QString belowAFile(const Folder& folder) {
    folder.put(u"file"_s, "x");
    return folder.path(u"file/dives"_s);
}

QString backupNameTaken(const Folder& folder) {
    folder.put(u"dives"_s, "old");
    QDir(folder.path()).mkdir(u"dives~"_s);
    return folder.path(u"dives"_s);
}

QString noRoomForBackupName(const Folder& folder) {
    folder.put(QString(255, u'n'), "old");
    return folder.path(QString(255, u'n'));
}

/// The process may not write files beyond `bytes` while it lives; what the signal does stays as it is.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &_before);
        const rlimit limit{bytes, _before.rlim_max};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("setrlimit");
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &_before); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit _before{};
};

}  // namespace

Q_DECLARE_METATYPE(Obstacle)
Q_DECLARE_METATYPE(SaveProblem)

/// Failures that the real system makes.
class SaveConditionsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void refusesImpossiblePlaces_data() {
        QTest::addColumn<Obstacle>("obstacle");
        QTest::addColumn<SaveProblem>("problem");
        const auto row = [](const char* name, Obstacle obstacle, SaveProblem problem) {
            QTest::newRow(name) << obstacle << problem;
        };
        row(
            "missing folder", [](const Folder& f) { return f.path(u"none/dives"_s); }, SaveProblem::NoFolder);
        row("below a file", belowAFile, SaveProblem::NoFolder);
        row("link into a missing folder", linkIntoMissingFolder, SaveProblem::NoFolder);
        row("folder", innerFolder, SaveProblem::NotAFile);
        row(
            "folder, with slash", [](const Folder& f) { return f.path(u"dives/"_s); }, SaveProblem::NotAFile);
        row(
            "this folder", [](const Folder& f) { return f.path(u"."_s); }, SaveProblem::NotAFile);
        row(
            "folder above", [](const Folder& f) { return f.path(u".."_s); }, SaveProblem::NotAFile);
        row("pipe", pipe, SaveProblem::NotAFile);
        row(
            "device", [](const Folder&) { return u"/dev/null"_s; }, SaveProblem::NotAFile);
        row("links in a circle", circleOfLinks, SaveProblem::NotAFile);
        row(
            "empty name", [](const Folder&) { return u""_s; }, SaveProblem::BadName);
        row(
            "NUL in the name", [](const Folder& f) { return f.path(u"a"_s) + QChar(u'\0') + u'b'; },
            SaveProblem::BadName);
        row(
            "name too long", [](const Folder& f) { return f.path(QString(256, u'n')); },
            SaveProblem::BadName);
        row("backup name is a folder", backupNameTaken, SaveProblem::Backup);
        row("no room for the backup name", noRoomForBackupName, SaveProblem::Backup);
    }
    void refusesImpossiblePlaces() {
        QFETCH(Obstacle, obstacle);
        QFETCH(SaveProblem, problem);
        const Folder folder;
        const QString path = obstacle(folder);
        const QStringList before = folder.names();
        const auto error = errorOf<SaveError>([&] { saveFile(path, "new", {.keepBackup = true}); });
        QVERIFY(error);
        QCOMPARE(error->reason(), problem);
        QVERIFY(!error->replaced());
        QCOMPARE(error->path(), path);
        QVERIFY(error->sentence().contains(path.section(u'/', -1).section(QChar(u'\0'), 0, 0)));
        QCOMPARE(folder.names(), before);
        if (problem == SaveProblem::Backup) QCOMPARE(folder.content(before.first()), QByteArray("old"));
    }

    void respectsPermissions_data() {
        QTest::addColumn<uint>("folderMode");
        QTest::addColumn<uint>("fileMode");
        QTest::addColumn<bool>("saves");
        QTest::newRow("both writable") << 0777u << 0666u << true;
        QTest::newRow("folder write-protected") << 0555u << 0666u << false;
        QTest::newRow("file write-protected") << 0777u << 0444u << false;
        QTest::newRow("folder closed") << 0000u << 0666u << false;
    }
    void respectsPermissions() {
        QFETCH(uint, folderMode);
        QFETCH(uint, fileMode);
        QFETCH(bool, saves);
        const Folder folder;
        folder.put(u"dives"_s, "old");
        setMode(folder.path(u"dives"_s), fileMode);
        setMode(folder.path(), folderMode);
        std::optional<SaveError> error;
        {
            const OrdinaryPerson person;
            error = errorOf<SaveError>([&] { saveFile(folder.path(u"dives"_s), "new"); });
        }
        setMode(folder.path(), 0700);
        QCOMPARE(error.has_value(), !saves);
        if (error) QCOMPARE(error->reason(), SaveProblem::NoPermission);
        QCOMPARE(folder.content(u"dives"_s), QByteArray(saves ? "new" : "old"));
        QCOMPARE(folder.names(), QStringList{u"dives"_s});
    }

    void aWriteThatIsCutShortIsAFailure_data() {
        QTest::addColumn<qint64>("limit");
        QTest::addColumn<bool>("saves");
        QTest::newRow("nothing fits") << qint64{0} << false;
        QTest::newRow("half fits") << qint64{50'000} << false;
        QTest::newRow("all but one byte") << qint64{99'999} << false;
        QTest::newRow("all fits") << qint64{100'000} << true;
    }
    void aWriteThatIsCutShortIsAFailure() {
        QFETCH(qint64, limit);
        QFETCH(bool, saves);
        const Folder folder;
        folder.put(u"dives"_s, "old");
        std::optional<SaveError> error;
        {
            // The signal's default action, which would end this program, is left in place on purpose.
            const FileSizeLimit small(static_cast<rlim_t>(limit));
            error = errorOf<SaveError>(
                [&] { saveFile(folder.path(u"dives"_s), QByteArray(100'000, 'n'), {.keepBackup = true}); });
        }
        QCOMPARE(error.has_value(), !saves);
        if (error) QCOMPARE(error->reason(), SaveProblem::TooLarge);
        QCOMPARE(folder.content(u"dives"_s), saves ? QByteArray(100'000, 'n') : QByteArray("old"));
        QCOMPARE(folder.names().size(), saves ? 2 : 1);
    }

    void aSignalThatWaitedBeforeIsStillDelivered() {
        sigset_t held;
        sigemptyset(&held);
        sigaddset(&held, SIGXFSZ);
        sigset_t before;
        QVERIFY(::pthread_sigmask(SIG_BLOCK, &held, &before) == 0);
        const Folder folder;
        saveFile(folder.path(u"dives"_s), "new");
        sigset_t now;
        ::pthread_sigmask(SIG_SETMASK, &before, &now);
        QVERIFY(sigismember(&now, SIGXFSZ));
    }

    void aFolderThatVanishesIsReported_data() {
        QTest::addColumn<QString>("before");
        QTest::newRow("before the new file is made") << u"checkWritableAt"_s;
        QTest::newRow("while it is written") << u"write"_s;
        QTest::newRow("while it is flushed") << u"sync"_s;
        QTest::newRow("just before it is named") << u"renameAt"_s;
    }
    void aFolderThatVanishesIsReported() {
        QFETCH(QString, before);
        const Folder folder;
        QDir(folder.path()).mkdir(u"stick"_s);
        folder.put(u"stick/dives"_s, "old");
        FaultyFileSystem system;
        system.fault = [&](const FaultyFileSystem::Call& call) {
            if (call.name == before.toStdString()) QDir(folder.path(u"stick"_s)).removeRecursively();
            return 0;
        };
        const auto error =
            errorOf<SaveError>([&] { saveFile(folder.path(u"stick/dives"_s), "new", {}, system); });
        QVERIFY(error);
        QCOMPARE(error->reason(), SaveProblem::NoFolder);
        QCOMPARE(folder.names(), QStringList{});
    }
};

int runSaveConditionsTest(int argc, char** argv) {
    SaveConditionsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SaveConditionsTest.moc"
