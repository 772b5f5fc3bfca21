#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class RegisterSortTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstClickSortsDescendingAndEachFurtherOneTurns() {
        Wrecks wrecks({u"b"_s, u"C"_s, u"a"_s});
        wrecks.shown->clickTableColumn(u"nom"_s);
        QCOMPARE(wrecks.names(), QStringList({u"b"_s, u"a"_s, u"C"_s}));  // capitals before small letters
        QVERIFY(!wrecks.shown->isSortAscending());
        wrecks.shown->clickTableColumn(u"nom"_s);
        QCOMPARE(wrecks.names(), QStringList({u"C"_s, u"a"_s, u"b"_s}));
        QVERIFY(wrecks.shown->isSortAscending());
        wrecks.shown->clickTableColumn(u"nom"_s);
        QCOMPARE(wrecks.names(), QStringList({u"b"_s, u"a"_s, u"C"_s}));
    }

    void aColumnKeepsItsDirectionWhileOthersAreClicked() {
        Wrecks wrecks({u"b"_s, u"a"_s});
        wrecks.shown->clickTableColumn(u"nom"_s);
        wrecks.shown->clickTableColumn(u"nom"_s);
        wrecks.shown->clickTableColumn(u"type"_s);
        QVERIFY(!wrecks.shown->isSortAscending());
        wrecks.shown->clickTableColumn(u"nom"_s);
        QVERIFY(wrecks.shown->isSortAscending());
        QCOMPARE(wrecks.names(), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(wrecks.shown->sortedColumn(), u"nom"_s);
    }

    void equalRowsKeepTheirOrderAndAbsentValuesAreTheLeast() {
        RegisterBench bench("Epaves");
        QList<Epaves> list(4);
        const char* names[] = {"one", "two", "three", "four"};
        for (int i = 0; i < 4; ++i) list[i].setNom(QLatin1String(names[i]));
        list[1].setType(u"cargo"_s);
        list[3].setType(u""_s);
        bench.load<Epaves>(list, epavesClass());
        bench.shown->clickTableColumn(u"type"_s);
        QCOMPARE(bench.column(u"nom"_s), QStringList({u"two"_s, u"four"_s, u"one"_s, u"three"_s}));
        bench.shown->clickTableColumn(u"type"_s);
        QCOMPARE(bench.column(u"nom"_s), QStringList({u"one"_s, u"three"_s, u"four"_s, u"two"_s}));
    }

    void numbersAreSortedAsNumbers() {
        RegisterBench bench("Epaves");
        QList<Epaves> list(4);
        const float depths[] = {9, 30, std::numeric_limits<float>::quiet_NaN(), -1};
        for (int i = 0; i < 4; ++i) list[i].setPointHaut(depths[i]);
        bench.load<Epaves>(list, epavesClass());
        bench.shown->clickTableColumn(u"pointHaut"_s);
        QCOMPARE(bench.column(u"pointHaut"_s), QStringList({u"30 m"_s, u"9 m"_s, u"-"_s, u"nan"_s}));
    }

    void sortingKeepsTheSelectedRecordsSelectedAndCanBeUndone() {
        Wrecks wrecks({u"b"_s, u"a"_s, u"c"_s});
        wrecks.shown->selectRows({1});
        wrecks.shown->clickTableColumn(u"nom"_s);
        QCOMPARE(wrecks.names(), QStringList({u"c"_s, u"b"_s, u"a"_s}));
        QCOMPARE(wrecks.shown->selectedRows(), Selection{2});
        QVERIFY(wrecks.document->isEdited());
        wrecks.document->undo();
        QCOMPARE(wrecks.names(), QStringList({u"b"_s, u"a"_s, u"c"_s}));
    }

    void anUnknownColumnIsAnError() {
        Wrecks wrecks({u"b"_s, u"a"_s});
        QVERIFY(failureOf<UnknownKeyError>([&] { wrecks.shown->clickTableColumn(u"beauty"_s); }));
        QVERIFY(wrecks.shown->sortedColumn().isEmpty());
    }
};

int runRegisterSortTest(int argc, char** argv) {
    RegisterSortTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterSortTest.moc"
