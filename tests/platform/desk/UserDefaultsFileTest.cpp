#include <sys/stat.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include "platform/desk/DeskTests.h"
#include "platform/desk/UserDefaults.h"
#include "platform/files/Folder.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QString file = u"settings.json"_s;

QJsonObject settingsIn(const Folder& folder) {
    return QJsonDocument::fromJson(folder.content(file)).object();
}

}  // namespace

class UserDefaultsFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void storedValuesSurviveReopening() {
        const Folder folder;
        {
            UserDefaults defaults(folder.path());
            QCOMPARE(defaults.problem(), QString());
            defaults.registerDefault(u"registered"_s, 1);
            defaults.store(u"serie"_s, u"N° 12"_s);
            defaults.store(u"lieux"_s, QJsonArray{u"Brest"_s});
            defaults.store(u"gone"_s, true);
            defaults.remove(u"gone"_s);
        }
        const UserDefaults again(folder.path());
        QCOMPARE(again.text(u"serie"_s), u"N° 12"_s);
        QCOMPARE(again.list(u"lieux"_s), QStringList({u"Brest"_s}));
        QCOMPARE(again.keys(), QStringList({u"lieux"_s, u"serie"_s}));
        QCOMPARE(again.problem(), QString());
        QCOMPARE(folder.names(), QStringList({file}));
    }

    void everyChangeIsWrittenAtOnceAndOnlyChanges() {
        const Folder folder;
        UserDefaults defaults(folder.path());
        QVERIFY(folder.names().isEmpty());
        defaults.registerDefault(u"a"_s, 1);
        defaults.remove(u"a"_s);
        QVERIFY(folder.names().isEmpty());
        defaults.store(u"a"_s, 1);
        QCOMPARE(settingsIn(folder), QJsonObject({{u"a"_s, 1}}));
        QVERIFY(QFile::remove(folder.path(file)));
        defaults.store(u"a"_s, 1);
        QVERIFY(folder.names().isEmpty());
        defaults.store(u"a"_s, 2);
        QCOMPARE(settingsIn(folder), QJsonObject({{u"a"_s, 2}}));
    }

    void manyValuesAreWrittenTogether() {
        const Folder folder;
        UserDefaults defaults(folder.path());
        defaults.store(u"kept"_s, 1);
        const quint64 before = defaults.version();
        defaults.storeAll({{u"a"_s, 2}, {u"b"_s, u"x"_s}});
        QCOMPARE(defaults.version(), before + 1);
        QCOMPARE(settingsIn(folder), QJsonObject({{u"kept"_s, 1}, {u"a"_s, 2}, {u"b"_s, u"x"_s}}));
        defaults.storeAll({{u"a"_s, 2}});
        QCOMPARE(defaults.version(), before + 1);
    }

    void whatAnotherProgramStoredIsKept() {
        const Folder folder;
        UserDefaults desktop(folder.path());
        desktop.store(u"a"_s, 1);
        desktop.store(u"b"_s, 1);
        UserDefaults command(folder.path());
        command.store(u"a"_s, 2);
        command.remove(u"b"_s);
        desktop.store(u"c"_s, 3);
        QCOMPARE(settingsIn(folder), QJsonObject({{u"a"_s, 2}, {u"c"_s, 3}}));
        QCOMPARE(desktop.integer(u"a"_s), 2);
        command.store(u"d"_s, 4);
        desktop.remove(u"a"_s);
        QCOMPARE(settingsIn(folder), QJsonObject({{u"c"_s, 3}, {u"d"_s, 4}}));
    }

    void aFailedWriteIsToldOnce() {
        const Folder folder;
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0555) == 0);
        UserDefaults defaults(folder.path());
        QStringList told;
        defaults.onProblem = [&told](const QString& problem) { told << problem; };
        {
            const OrdinaryPerson person;
            defaults.store(u"a"_s, 1);
            defaults.store(u"b"_s, 2);
        }
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0755) == 0);
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first(), defaults.problem());
        defaults.store(u"c"_s, 3);
        QCOMPARE(told.size(), 1);
        QCOMPARE(settingsIn(folder).size(), 3);
    }

    void aMissingFolderIsMadeWhenSomethingIsStored() {
        const Folder folder;
        UserDefaults defaults(folder.path(u"deep/er"_s));
        QVERIFY(!QFileInfo::exists(folder.path(u"deep"_s)));
        defaults.store(u"a"_s, 1);
        QCOMPARE(defaults.problem(), QString());
        QCOMPARE(UserDefaults(folder.path(u"deep/er"_s)).integer(u"a"_s), 1);
    }

    void aDamagedFileIsSetAside_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::newRow("cut") << QByteArray("{\"a\": 1") << u"byte 7: "_s;
        QTest::newRow("empty") << QByteArray("") << u"byte 0: "_s;
        QTest::newRow("not JSON") << QByteArray("hello") << u"byte "_s;
        QTest::newRow("another value") << QByteArray("[1, 2]") << u"an object was expected"_s;
        QTest::newRow("bytes") << QByteArray(5000, '\xff') << u"byte "_s;
    }
    void aDamagedFileIsSetAside() {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        const Folder folder;
        folder.put(file, content);
        UserDefaults defaults(folder.path());
        QVERIFY2(defaults.problem().contains(reason), qPrintable(defaults.problem()));
        QVERIFY(defaults.problem().startsWith(folder.path(file)));
        QVERIFY(defaults.problem().contains(folder.path(file + u".damaged"_s)));
        QVERIFY(!defaults.problem().contains(u'\n') && !defaults.problem().contains(u"no error"_s));
        QCOMPARE(folder.content(file + u".damaged"_s), content);
        defaults.registerDefault(u"a"_s, 5);
        QCOMPARE(defaults.integer(u"a"_s), 5);
        defaults.store(u"a"_s, 6);
        QCOMPARE(defaults.problem(), QString());
        QCOMPARE(UserDefaults(folder.path()).integer(u"a"_s), 6);
    }

    void aLaterDamagedFileTakesThePlaceOfTheEarlier() {
        const Folder folder;
        folder.put(file + u".damaged"_s, "earlier");
        folder.put(file, "later");
        const UserDefaults defaults(folder.path());
        QCOMPARE(folder.content(file + u".damaged"_s), QByteArray("later"));
    }

    void aFolderThatMayNotBeWrittenIsAProblemAndTheValueStays() {
        const Folder folder;
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0555) == 0);
        UserDefaults defaults(folder.path());
        {
            const OrdinaryPerson person;
            defaults.store(u"a"_s, 1);
        }
        QVERIFY(defaults.problem().contains(file));
        QCOMPARE(defaults.integer(u"a"_s), 1);
        defaults.store(u"b"_s, 2);  // by now it may be written to
        QCOMPARE(defaults.problem(), QString());
        QCOMPARE(settingsIn(folder), QJsonObject({{u"a"_s, 1}, {u"b"_s, 2}}));
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0755) == 0);
    }

    void aFileThatCannotBeReadIsLeftAlone() {
        const Folder folder;
        folder.put(file, "{\"precious\": 1}");
        const QByteArray name = QFile::encodeName(folder.path(file));
        QVERIFY(::chmod(QFile::encodeName(folder.path()).constData(), 0777) == 0);
        QVERIFY(::chmod(name.constData(), 0) == 0);
        std::optional<UserDefaults> defaults;
        {
            const OrdinaryPerson person;
            defaults.emplace(folder.path());
            QVERIFY(!defaults->problem().isEmpty());
            defaults->store(u"a"_s, 1);
        }
        QVERIFY(::chmod(name.constData(), 0600) == 0);
        QCOMPARE(folder.content(file), QByteArray("{\"precious\": 1}"));
        QCOMPARE(defaults->integer(u"a"_s), 1);
        QVERIFY(!defaults->problem().isEmpty());
    }

    void whatIsNoFileIsLeftAlone() {
        const Folder folder;
        QVERIFY(QDir(folder.path()).mkdir(file));
        UserDefaults defaults(folder.path());
        QVERIFY(defaults.problem().contains(file));
        defaults.store(u"a"_s, 1);
        QCOMPARE(defaults.integer(u"a"_s), 1);
        QVERIFY(QFileInfo(folder.path(file)).isDir());
    }
};

int runUserDefaultsFileTest(int argc, char** argv) {
    UserDefaultsFileTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UserDefaultsFileTest.moc"
