#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include "AppTests.h"
#include "app/SingleInstance.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QString uniqueName() {
    return u"sargan-test-%1-%2"_s.arg(QCoreApplication::applicationPid())
        .arg(QRandomGenerator::global()->generate64());
}

}  // namespace

class SingleInstanceTest : public QObject {
    Q_OBJECT

    /// What a second start does, in its own thread as it would be in its own process.
    static bool secondStart(const QString& name, const QStringList& files) {
        bool taken = false;
        std::unique_ptr<QThread> second(
            QThread::create([&] { taken = SingleInstance(name).handOver(files); }));
        second->start();
        while (!second->wait(5)) QCoreApplication::processEvents();
        return taken;
    }

private Q_SLOTS:
    void withoutARunningProgramNothingIsHandedOver() {
        QVERIFY(!SingleInstance(uniqueName()).handOver({u"/a"_s}));
    }

    void aSecondStartHandsItsFilesToTheFirst() {
        const QString name = uniqueName();
        SingleInstance first(name);
        QSignalSpy received(&first, &SingleInstance::filesReceived);
        QVERIFY(first.listen());
        QVERIFY(secondStart(name, {u"/a.carnet"_s, u"/b é.carnet"_s}));
        QVERIFY(secondStart(name, {}));
        QCOMPARE(received.size(), 2);
        QCOMPARE(received[0].first().toStringList(), (QStringList{u"/a.carnet"_s, u"/b é.carnet"_s}));
        QCOMPARE(received[1].first().toStringList(), QStringList());
    }

    void theRunningProgramOpensTheFileItIsHanded() {
        const QString name = uniqueName();
        Desktop desktop;
        SingleInstance first(name);
        QObject::connect(&first, &SingleInstance::filesReceived, &desktop.suite, &DesktopSuite::takeOver);
        QVERIFY(first.listen());
        desktop.suite.launch({desktop.copyOf(u"plongee-v27.carnet"_s, u"a.carnet"_s)});
        QVERIFY(secondStart(name, {desktop.copyOf(u"plongee-v26.carnet"_s, u"b.carnet"_s)}));
        QTRY_COMPARE(desktop.count(), 2);
    }

    void aSocketThatADeadProgramLeftIsClearedAway() {
        const QString name = uniqueName();
        // A plain file at the socket's place refuses connections just as a dead program's socket does.
        QLocalServer probe;
        QVERIFY(probe.listen(name));
        const QString place = probe.fullServerName();
        probe.close();
        QFile stale(place);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.close();
        SingleInstance first(name);
        QVERIFY(!first.handOver({}));
        QVERIFY(first.listen());
        QVERIFY(secondStart(name, {}));
    }

    void whatIsNoMessageIsDropped() {
        const QString name = uniqueName();
        SingleInstance first(name);
        QSignalSpy received(&first, &SingleInstance::filesReceived);
        QVERIFY(first.listen());
        QLocalSocket stranger;
        stranger.connectToServer(name);
        QVERIFY(stranger.waitForConnected());
        stranger.write("hello\n");
        QTRY_COMPARE(stranger.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(received.size(), 0);
    }

    void everySettingsFolderHasItsOwnProgram() {
        QVERIFY(SingleInstance::nameFor(u"/a"_s) != SingleInstance::nameFor(u"/b"_s));
        QCOMPARE(SingleInstance::nameFor(u"/a/../a"_s).isEmpty(), false);
    }
};

int runSingleInstanceTest(int argc, char** argv) {
    SingleInstanceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SingleInstanceTest.moc"
