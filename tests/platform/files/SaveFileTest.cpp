#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <QTest>

#include "FaultyFileSystem.h"
#include "FileTests.h"
#include "Folder.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QString file = u"dives"_s;
const QString leftover = u".sargan-0123456789abcdef"_s;

mode_t modeOf(const QString& path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void setMode(const QString& path, mode_t mode) {
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0) throw std::runtime_error("chmod");
}

}  // namespace

class SaveFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void makesTheBytesTheContent_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("plain") << file << QByteArray("new");
        QTest::newRow("empty") << file << QByteArray("");
        QTest::newRow("several pieces") << file << QByteArray(9'000'001, 'x');
        QTest::newRow("accents and blanks") << u"été à la mer 2.dives"_s << QByteArray("new");
        QTest::newRow("longest name") << QString(255, u'n') << QByteArray("new");
        QTest::newRow("hidden") << u".dives"_s << QByteArray("new");
    }
    void makesTheBytesTheContent() {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const Folder folder;
        QVERIFY(saveFile(folder.path(name), bytes) == stampOf(bytes));
        QCOMPARE(folder.content(name), bytes);
        QVERIFY(saveFile(folder.path(name), bytes + "2") == stampOf(bytes + "2"));
        QCOMPARE(folder.content(name), bytes + "2");
        QCOMPARE(folder.names(), QStringList{name});
    }

    void takesARelativePath() {
        const Folder folder;
        const QString before = QDir::currentPath();
        QDir::setCurrent(folder.path());
        saveFile(file, "new");
        QDir::setCurrent(before);
        QCOMPARE(folder.content(file), QByteArray("new"));
    }

    void newFileHasTheUsualPermissions() {
        const Folder folder;
        const mode_t before = ::umask(027);
        saveFile(folder.path(file), "new");
        ::umask(before);
        QCOMPARE(modeOf(folder.path(file)), mode_t{0640});
    }

    void keepsPermissions_data() {
        QTest::addColumn<uint>("mode");
        for (const uint mode : {0600u, 0644u, 0664u, 0666u, 0755u, 0200u | 0400u}) {
            QTest::addRow("%o", mode) << mode;
        }
    }
    void keepsPermissions() {
        QFETCH(uint, mode);
        const Folder folder;
        folder.put(file, "old");
        setMode(folder.path(file), mode);
        saveFile(folder.path(file), "new");
        QCOMPARE(modeOf(folder.path(file)), mode_t{mode});
    }

    void aGroupThatCannotBeKeptGivesNobodyElseAccess() {
        if (::geteuid() != 0) QSKIP("only root can prepare a file of a foreign group");
        const Folder folder;
        folder.put(file, "old");
        const QByteArray path = QFile::encodeName(folder.path(file));
        QVERIFY(::chown(path.constData(), 0, 12345) == 0);
        setMode(folder.path(file), 0664);
        FaultyFileSystem system;
        system.fault = [](const FaultyFileSystem::Call& call) {
            return call.name == "changeOwner" ? EPERM : 0;
        };
        saveFile(folder.path(file), "new", {}, system);
        QVERIFY(system.faults() > 0);
        QCOMPARE(modeOf(folder.path(file)), mode_t{0644});
    }

    void keepsOwnerAndGroup() {
        if (::geteuid() != 0) QSKIP("only root can prepare a file of another owner");
        const Folder folder;
        folder.put(file, "old");
        const QByteArray path = QFile::encodeName(folder.path(file));
        QVERIFY(::chown(path.constData(), 12346, 12345) == 0);
        saveFile(folder.path(file), "new");
        struct stat status {};
        QVERIFY(::stat(path.constData(), &status) == 0);
        QCOMPARE(status.st_uid, uid_t{12346});
        QCOMPARE(status.st_gid, gid_t{12345});
    }

    void keepsDesktopTags() {
        const Folder folder;
        folder.put(file, "old");
        const QByteArray path = QFile::encodeName(folder.path(file));
        if (::setxattr(path.constData(), "user.xdg.tags", "sea", 3, 0) != 0) {
            QSKIP("this file system has no extended attributes");
        }
        saveFile(folder.path(file), "new");
        char value[8] = {};
        QCOMPARE(::getxattr(path.constData(), "user.xdg.tags", value, sizeof(value)), ssize_t{3});
        QCOMPARE(QByteArray(value), QByteArray("sea"));
    }

    void replacesTheTargetOfALink_data() {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("exists");
        QTest::newRow("beside") << u"real"_s << true;
        QTest::newRow("in another folder") << u"inner/real"_s << true;
        QTest::newRow("not there yet") << u"inner/real"_s << false;
    }
    void replacesTheTargetOfALink() {
        QFETCH(QString, target);
        QFETCH(bool, exists);
        const Folder folder;
        QDir(folder.path()).mkdir(u"inner"_s);
        if (exists) folder.put(target, "old");
        QFile::link(target, folder.path(u"link"_s));
        QFile::link(folder.path(u"link"_s), folder.path(u"second"_s));
        saveFile(folder.path(u"second"_s), "new", {.keepBackup = true});
        QVERIFY(QFileInfo(folder.path(u"link"_s)).isSymLink());
        QVERIFY(QFileInfo(folder.path(u"second"_s)).isSymLink());
        QVERIFY(!QFileInfo(folder.path(target)).isSymLink());
        QCOMPARE(folder.content(target), QByteArray("new"));
        QCOMPARE(folder.content(target + u'~'), exists ? QByteArray("old") : QByteArray());
        QCOMPARE(backupPath(folder.path(u"second"_s)), folder.path(target + u'~'));
    }

    void otherHardLinksKeepTheOldVersion() {
        const Folder folder;
        folder.put(file, "old");
        QVERIFY(::link(QFile::encodeName(folder.path(file)).constData(),
                       QFile::encodeName(folder.path(u"other"_s)).constData()) == 0);
        saveFile(folder.path(file), "new");
        QCOMPARE(folder.content(u"other"_s), QByteArray("old"));
    }

    void keepsThePreviousVersion() {
        const Folder folder;
        const SaveOptions options{.keepBackup = true};
        saveFile(folder.path(file), "1", options);
        QCOMPARE(folder.names(), QStringList{file});
        saveFile(folder.path(file), "2", options);
        QCOMPARE(folder.content(file + u'~'), QByteArray("1"));
        saveFile(folder.path(file), "3", options);
        QCOMPARE(folder.content(file + u'~'), QByteArray("2"));
        QCOMPARE(folder.content(file), QByteArray("3"));
        QCOMPARE(folder.names(), (QStringList{file, file + u'~'}));
    }

    void leavesABackupAloneWhenNoneIsAskedFor() {
        const Folder folder;
        folder.put(file, "2");
        folder.put(file + u'~', "1");
        saveFile(folder.path(file), "3");
        QCOMPARE(folder.content(file + u'~'), QByteArray("1"));
    }

    void keepsThePreviousVersionAfterAnInterruptedSave() {
        // A kill after the backup was made and before the file was replaced leaves one file with two names.
        const Folder folder;
        folder.put(file, "old");
        QVERIFY(::link(QFile::encodeName(folder.path(file)).constData(),
                       QFile::encodeName(folder.path(file + u'~')).constData()) == 0);
        saveFile(folder.path(file), "new", {.keepBackup = true});
        QCOMPARE(folder.content(file), QByteArray("new"));
        QCOMPARE(folder.content(file + u'~'), QByteArray("old"));
        QCOMPARE(folder.names(), (QStringList{file, file + u'~'}));
    }

    void copiesThePreviousVersionWhereLinksAreImpossible() {
        const Folder folder;
        const QByteArray old(3'000'000, 'o');
        folder.put(file, old);
        setMode(folder.path(file), 0640);
        FaultyFileSystem system;
        system.fault = [](const FaultyFileSystem::Call& call) { return call.name == "linkAt" ? EPERM : 0; };
        saveFile(folder.path(file), "new", {.keepBackup = true}, system);
        QCOMPARE(folder.content(file), QByteArray("new"));
        QCOMPARE(folder.content(file + u'~'), old);
        QCOMPARE(modeOf(folder.path(file + u'~')), mode_t{0640});
        QCOMPARE(folder.names(), (QStringList{file, file + u'~'}));
    }

    void savesAgainWithTheStampOfTheLastSave() {
        const Folder folder;
        folder.put(file, "1");
        SaveOptions options{.expected = readStampedFile(folder.path(file)).stamp};
        for (const char* version : {"2", "three", "4", ""}) {
            options.expected = saveFile(folder.path(file), version, options);
            QCOMPARE(folder.content(file), QByteArray(version));
        }
    }

    void refusesToReplaceAFileThatChanged_data() {
        QTest::addColumn<QByteArray>("changed");
        QTest::newRow("same length") << QByteArray("OLD");
        QTest::newRow("longer") << QByteArray("older");
        QTest::newRow("emptied") << QByteArray("");
    }
    void refusesToReplaceAFileThatChanged() {
        QFETCH(QByteArray, changed);
        const Folder folder;
        folder.put(file, changed);
        SaveOptions options{.expected = stampOf("old"), .keepBackup = true};
        const auto error = errorOf<SaveError>([&] { saveFile(folder.path(file), "new", options); });
        QVERIFY(error);
        QCOMPARE(error->reason(), SaveProblem::ChangedOnDisk);
        QVERIFY(!error->replaced());
        QCOMPARE(folder.content(file), changed);
        QCOMPARE(folder.names(), QStringList{file});

        options.overwriteChanged = true;
        saveFile(folder.path(file), "new", options);
        QCOMPARE(folder.content(file), QByteArray("new"));
        QCOMPARE(folder.content(file + u'~'), changed);
    }

    void refusesToReplaceAFileThatChangesDuringTheSave_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::newRow("another version of it") << QByteArray("old");
        QTest::newRow("a file where there was none") << QByteArray();
    }
    void refusesToReplaceAFileThatChangesDuringTheSave() {
        QFETCH(QByteArray, before);
        const Folder folder;
        if (!before.isNull()) folder.put(file, before);
        FaultyFileSystem system;
        system.fault = [&](const FaultyFileSystem::Call& call) {
            if (call.name == "write") saveFile(folder.path(file), "its");
            return 0;
        };
        const SaveOptions options{.expected = stampOf("old")};
        const auto error = errorOf<SaveError>([&] { saveFile(folder.path(file), "new", options, system); });
        QVERIFY(error);
        QCOMPARE(error->reason(), SaveProblem::ChangedOnDisk);
        QCOMPARE(folder.content(file), QByteArray("its"));
        QCOMPARE(folder.names(), QStringList{file});
    }

    void writesAFileThatDisappearedAnew() {
        const Folder folder;
        saveFile(folder.path(file), "new", {.expected = stampOf("old"), .keepBackup = true});
        QCOMPARE(folder.content(file), QByteArray("new"));
        QCOMPARE(folder.names(), QStringList{file});
    }

    void removesWhatAKilledSaveLeft() {
        const Folder folder;
        folder.put(leftover, "half of a fi");
        folder.put(u".sargan-fedcba9876543210"_s, "");
        saveFile(folder.path(file), "new");
        QCOMPARE(folder.names(), QStringList{file});
    }

    void removesASecondNameThatAKilledSaveLeft() {
        const Folder folder;
        folder.put(file, "old");
        QVERIFY(::link(QFile::encodeName(folder.path(file)).constData(),
                       QFile::encodeName(folder.path(leftover)).constData()) == 0);
        saveFile(folder.path(u"another"_s), "new");
        QCOMPARE(folder.names(), (QStringList{u"another"_s, file}));
        QCOMPARE(folder.content(file), QByteArray("old"));
    }

    void leavesTheFileOfARunningSaveAlone() {
        const Folder folder;
        folder.put(leftover, "half of a fi");
        const int other = ::open(QFile::encodeName(folder.path(leftover)).constData(), O_WRONLY | O_CLOEXEC);
        QVERIFY(other >= 0 && ::flock(other, LOCK_EX) == 0);
        saveFile(folder.path(file), "new");
        QCOMPARE(folder.content(leftover), QByteArray("half of a fi"));
        ::close(other);
        saveFile(folder.path(file), "newer");
        QCOMPARE(folder.names(), QStringList{file});
    }

    void removesNothingElse_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("too short") << u".sargan-0123456789abcde"_s;
        QTest::newRow("too long") << u".sargan-0123456789abcdef0"_s;
        QTest::newRow("not hexadecimal") << u".sargan-0123456789abcdeg"_s;
        QTest::newRow("capitals") << u".sargan-0123456789ABCDEF"_s;
        QTest::newRow("not hidden") << u"sargan-00123456789abcdef"_s;
    }
    void removesNothingElse() {
        QFETCH(QString, name);
        const Folder folder;
        folder.put(name, "mine");
        saveFile(folder.path(file), "new");
        QCOMPARE(folder.content(name), QByteArray("mine"));
    }

    void doesNotFollowALinkNamedLikeALeftover() {
        const Folder folder;
        folder.put(u"precious"_s, "mine");
        QFile::link(u"precious"_s, folder.path(leftover));
        saveFile(folder.path(file), "new");
        QCOMPARE(folder.content(u"precious"_s), QByteArray("mine"));
    }

    void flushesTheWholeFileSystemWhereFoldersCannotBeFlushed() {
        const Folder folder;
        FaultyFileSystem system;
        bool wholeFlushed = false;
        system.fault = [&](const FaultyFileSystem::Call& call) {
            wholeFlushed = wholeFlushed || call.name == "syncWholeFileSystem";
            return call.name == "sync" && call.occurrence == 2 ? EINVAL : 0;
        };
        saveFile(folder.path(file), "new", {}, system);
        QVERIFY(wholeFlushed);
        QCOMPARE(folder.content(file), QByteArray("new"));
    }
};

int runSaveFileTest(int argc, char** argv) {
    SaveFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SaveFileTest.moc"
