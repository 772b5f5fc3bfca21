#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"
#include "platform/files/DocumentLock.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// The test holds the file's lock, as another program would that has it open.
class LockTest : public QObject {
    Q_OBJECT

    static void addLines(const QStringList& lines) {
        QTest::addColumn<QString>("line");
        for (const QString& line : lines) QTest::newRow(qPrintable(line)) << line;
    }

private Q_SLOTS:
    void aFileThatIsOpenElsewhereIsNotChanged_data() {
        addLines({u"add a.carnet bateau=x"_s, u"set a.carnet --row 0 bateau=x"_s,
                  u"delete a.carnet --row 0 --yes"_s, u"renumber a.carnet --from 5"_s});
    }
    void aFileThatIsOpenElsewhereIsNotChanged() {
        QFETCH(QString, line);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}})});
        DocumentLock elsewhere(shop.folder().path(u"a.carnet"_s));
        QVERIFY(elsewhere.tryLock());
        QCOMPARE(elsewhere.state(), DocumentLock::State::Held);
        const auto before = shop.everything();

        const Outcome refused = shop.run(line.split(u' '));
        QCOMPARE(refused.status, 1);
        QCOMPARE(refused.output, QByteArray());
        QVERIFY2(isOneSentence(refused.errors) && refused.errors.contains("a.carnet"_L1),
                 qPrintable(refused.errors));
        QCOMPARE(shop.everything(), before);

        elsewhere.unlock();
        const Outcome done = shop.run(line.split(u' '));
        QCOMPARE(done.status, 0);
        QCOMPARE(shop.folder().names(), QStringList({u"a.carnet"_s, u"a.carnet~"_s}));
        QCOMPARE(shop.folder().content(u"a.carnet~"_s), before.value(u"a.carnet"_s));
        QVERIFY(shop.folder().content(u"a.carnet"_s) != before.value(u"a.carnet"_s));
    }

    void aFileThatIsOpenElsewhereIsNotReplaced() {
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}})});
        shop.putLogbook(u"b.carnet"_s, {});
        DocumentLock elsewhere(shop.folder().path(u"b.carnet"_s));
        QVERIFY(elsewhere.tryLock());
        shop.put(u"a.json"_s, shop.run({u"dump"_s, u"a.carnet"_s}).output);
        const auto before = shop.everything();
        const Outcome refused = shop.run({u"load"_s, u"a.json"_s, u"-o"_s, u"b.carnet"_s});
        QCOMPARE(refused.status, 1);
        QVERIFY2(isOneSentence(refused.errors) && refused.errors.contains("b.carnet"_L1),
                 qPrintable(refused.errors));
        QCOMPARE(shop.everything(), before);
    }

    void aFileThatIsOpenElsewhereCanBeLookedAt_data() {
        addLines({u"info a.carnet"_s, u"dump a.carnet"_s, u"form a.carnet --row 0"_s,
                  u"find a.carnet --in notes x"_s});
    }
    void aFileThatIsOpenElsewhereCanBeLookedAt() {
        QFETCH(QString, line);
        const Workshop shop;
        shop.putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}})});
        const Outcome alone = shop.run(line.split(u' '));
        DocumentLock elsewhere(shop.folder().path(u"a.carnet"_s));
        QVERIFY(elsewhere.tryLock());
        const auto before = shop.everything();
        const Outcome outcome = shop.run(line.split(u' '));
        QCOMPARE(outcome.status, 0);
        QVERIFY(!outcome.output.isEmpty());
        QCOMPARE(outcome.output, alone.output);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(shop.everything(), before);
    }
};

int runLockTest(int argc, char** argv) {
    LockTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LockTest.moc"
