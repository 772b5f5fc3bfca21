#include "platform/form/SystemColors.h"
#include "registers/RegisterBench.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

Moment local(const char* iso) {
    return Moment::fromIso(QLatin1String(iso));
}

/// A register that holds this item alone.
struct OneItem : RegisterBench {
    explicit OneItem(const Materiel& item) : RegisterBench("Materiel") {
        load<Materiel>({item}, materielClass());
    }
};

Materiel itemWith(void (Materiel::*set)(Int), int value) {
    Materiel item;
    (item.*set)(value);
    return item;
}

}  // namespace

class InvMaterielTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theStateHasItsWordAndColour_data() {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        QTest::newRow("0") << 0 << u"En service"_s << QColor::fromRgbF(0.12F, 0.53F, 0.01F);
        QTest::newRow("1") << 1 << u"A reparer"_s << systemcolor::orange;
        QTest::newRow("2") << 2 << u"Reforme"_s << systemcolor::red;
        QTest::newRow("3") << 3 << u"Gift"_s << systemcolor::blue;
        QTest::newRow("4") << 4 << u"Sold"_s << systemcolor::blue;
        QTest::newRow("5") << 5 << u"Lost"_s << systemcolor::red;
        QTest::newRow("6") << 6 << u"Replace"_s << systemcolor::orange;
        QTest::newRow("7") << 7 << u"7"_s << QColor();
        QTest::newRow("-1") << -1 << u"-1"_s << QColor();
    }
    void theStateHasItsWordAndColour() {
        QFETCH(int, state);
        OneItem bench(itemWith(&Materiel::setEquipState, state));
        QTEST(bench.cell(0, u"equipState"_s).text, "text");
        QTEST(bench.cell(0, u"equipState"_s).color, "color");
    }

    void invoiceNumberAndNextInspectionAreShown() {
        Materiel item;
        item.setMatosNo(u"7"_s);
        item.setNextRevision(local("2018-03-04"));
        OneItem plain(item);
        QCOMPARE(plain.cell(0, u"factureMatos"_s).text, u""_s);
        QCOMPARE(plain.cell(0, u"nextRevision"_s).text, u"04/03/2018"_s);
        QCOMPARE(plain.cell(0, u"matosNo"_s).text, u"7"_s);
        QCOMPARE(plain.cell(0, u"matosNo"_s).color, systemcolor::brown);
        item.setFactureMatos(1);
        item.setNoInspection(1);
        OneItem other(item);
        QCOMPARE(other.cell(0, u"factureMatos"_s).text, u"Check"_s);
        QCOMPARE(other.cell(0, u"factureMatos"_s).color, systemcolor::green);
        QCOMPARE(other.cell(0, u"nextRevision"_s).text, u"-"_s);
        item.setFactureMatos(2);
        QCOMPARE(OneItem(item).cell(0, u"factureMatos"_s).text, u""_s);
    }

    void theGaugeColumnIsSortedByWhatItShows() {
        RegisterBench bench("Materiel");
        QList<Materiel> items(3);
        const char* next[] = {"2016-06-10T14:30:00", "2016-06-08T14:30:00", "2016-07-10T14:30:00"};
        for (int i = 0; i < 3; ++i) {
            items[i].setMatosNo(QString::number(i));
            items[i].setLastRevision(local("2016-06-06T14:30:00"));
            items[i].setNextRevision(local(next[i]));
        }
        bench.load<Materiel>(items, materielClass());
        bench.shown->clickTableColumn(u"progress"_s);
        QCOMPARE(bench.column(u"matosNo"_s), QStringList({u"1"_s, u"0"_s, u"2"_s}));
    }

    void aDropRepeatsTheLastRecordAndIsNoEdit() {
        RegisterBench bench("Materiel");
        QList<Materiel> items(2);
        items[0].setMatosNo(u"a"_s);
        items[1].setMatosNo(u"b"_s);
        bench.load<Materiel>(items, materielClass());
        QVERIFY(bench.shown->validateDrop());
        QVERIFY(!bench.shown->acceptDrop(u"text/plain"_s));
        QVERIFY(bench.shown->acceptDrop(u"materiel"_s));
        QCOMPARE(bench.column(u"matosNo"_s), QStringList({u"a"_s, u"b"_s, u"b"_s}));
        QVERIFY(!bench.document->isEdited());
        QCOMPARE(bench.log, QStringList({u"validate Drop 2"_s, u"validate Drop 3"_s}));
        // Both are one record in the file, and come back as two rows.
        RegisterBench again("Materiel");
        again.document->readBytes(bench.document->dataRepresentationOfType({}), u"Materiel"_s);
        QCOMPARE(again.column(u"matosNo"_s), QStringList({u"a"_s, u"b"_s, u"b"_s}));
    }

    void aDropIntoAnEmptyListDoesNothing() {
        RegisterBench bench("Materiel");
        QVERIFY(bench.shown->acceptDrop(u"materiel"_s));
        QCOMPARE(bench.shown->rowCount(), 0);
    }

    void otherRegistersTakeNoDrop() {
        RegisterBench bench("Epaves");
        bench.add();
        QVERIFY(!bench.shown->validateDrop());
        QVERIFY(!bench.shown->acceptDrop(u"materiel"_s));
        QCOMPARE(bench.log, QStringList());
    }
};

int runInvMaterielTableTest(int argc, char** argv) {
    InvMaterielTableTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InvMaterielTableTest.moc"
