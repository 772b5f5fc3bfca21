#include "platform/form/SystemColors.h"
#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"
#include "registers/RegisterWords.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

Consommables partWith(float stock, float reserve, float most) {
    Consommables part;
    part.setStock(stock);
    part.setReserve(reserve);
    part.setReserveMax(most);
    return part;
}

struct Stock : Holding<Consommables> {
    explicit Stock(const QList<Consommables>& parts) : Holding("Consommables", consommablesClass(), parts) {}
};

}  // namespace

class InvConsoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankPartHasItsValues() {
        RegisterBench bench("Consommables");
        bench.add({{u"reference"_s, u"x"_s}, {u"stock"_s, u"3"_s}, {u"noInventaire"_s, u"0"_s}});
        bench.shown->blankForm();
        QCOMPARE(bench.shown->selectedRows(), Selection());
        for (const char* field : {"referenceField", "marqueField", "utilisationField", "stockField",
                                  "reserveField", "reserveMaxField", "rangementField", "notesField"})
            QCOMPARE(bench.text(QLatin1String(field)), u""_s);
        QCOMPARE(bench.tag(u"noInventaireSwitch"_s), 1);
        QCOMPARE(bench.date(u"dateInventaireField"_s), u"2016-06-07T14:30:00"_s);
    }

    void aNewPartIsLeftWithItsProgress() {
        RegisterBench bench("Consommables");
        bench.add({{u"stock"_s, u"2,5"_s}});
        QCOMPARE(bench.record<Consommables>(0).progress(), 7.4F);
        QCOMPARE(bench.record<Consommables>(0).stock(), 2.5F);
        // No archive keeps it.
        RegisterBench again("Consommables");
        again.document->readBytes(bench.document->dataRepresentationOfType({}), u"Consommables"_s);
        QCOMPARE(again.record<Consommables>(0).progress(), 0.0F);
    }

    void theLevelIsTheShareOfTheFullStock_data() {
        QTest::addColumn<float>("stock");
        QTest::addColumn<float>("most");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("gauge");
        QTest::newRow("no maximum") << 5.0F << 0.0F << u"500.000000"_s << 1.0;
        QTest::newRow("a quarter") << 2.5F << 10.0F << u"25.000000"_s << 0.25;
        QTest::newRow("a third") << 1.0F << 3.0F << u"33.333333"_s << 1.0 / 3;
        QTest::newRow("nothing") << 0.0F << 10.0F << u"0.000000"_s << 0.0;
        QTest::newRow("below nothing") << -1.0F << 10.0F << u"-10.000000"_s << 0.0;
    }
    void theLevelIsTheShareOfTheFullStock() {
        QFETCH(float, stock);
        QFETCH(float, most);
        QFETCH(double, gauge);
        const Stock bench({partWith(stock, 0, most)});
        const TableCell cell = bench.cell(0, u"progress"_s);
        QTEST(cell.text, "text");
        QVERIFY(std::abs(*cell.gauge - gauge) < 1e-9);
    }

    void coloursWarnOfLowStock_data() {
        QTest::addColumn<float>("stock");
        QTest::addColumn<QColor>("reference");
        QTest::addColumn<QColor>("level");
        QTest::newRow("below the reserve") << 1.0F << registerwords::alarmRed << registerwords::alarmRed;
        QTest::newRow("at the reserve") << 2.0F << systemcolor::brown << systemcolor::gray;
        QTest::newRow("above the reserve") << 2.5F << systemcolor::gray << systemcolor::gray;
    }
    void coloursWarnOfLowStock() {
        QFETCH(float, stock);
        const Stock bench({partWith(stock, 2, 10)});
        QTEST(bench.cell(0, u"reference"_s).color, "reference");
        QTEST(bench.cell(0, u"stock"_s).color, "level");
        QVERIFY(!bench.cell(0, u"marque"_s).color.isValid());
    }

    void aPartThatIsNotCountedHasNoDate() {
        Consommables part, uncounted;
        part.setDateInventaire(Moment::fromIso(u"2016-01-09"_s));
        uncounted = part;
        uncounted.setNoInventaire(1);
        Stock bench({part, uncounted});
        QCOMPARE(bench.column(u"dateInventaire"_s), QStringList({u"09/01/2016"_s, u""_s}));
        bench.shown->selectRows({0});
        QVERIFY(!bench.isHidden(u"dateInventaireField"_s));
        bench.shown->selectRows({1});
        QVERIFY(bench.isHidden(u"dateInventaireField"_s));
    }

    void barsHaveTheirItems() {
        const RegisterBench empty("Consommables");
        QCOMPARE(listBar(empty), u"imprimer addPart deletePart synthese"_s);
        QCOMPARE(editBar(empty), u"addPart blankFields synthese"_s);
        QCOMPARE(enabledItems(empty), u"addPart"_s);
        const Stock bench({Consommables()});
        QCOMPARE(enabledItems(bench), listBar(bench));
        QVERIFY(opensAs(bench, u"Consommables"_s));
        QVERIFY(!opensAs(bench, u"Materiel"_s));
    }

    void theCardTellsThePart() {
        Consommables part = partWith(2.5F, 2, 10);
        part.setReference(u"JT-112"_s);
        part.setMarque(u"Joints du Port"_s);
        part.setUtilisation(u"HP"_s);
        part.setRangement(u"1"_s);
        const Stock bench({part});
        const QStringList lines = bench.shown->card(0).plainText().split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.first(7).join(u'|'),
                 u"Inventory|--------------------|Reference : JT-112|Trade mark : Joints du Port|Use : HP|"
                 u"Quantity : 2.5|Location : 1"_s);
    }
};

int runInvConsoTest(int argc, char** argv) {
    InvConsoTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InvConsoTest.moc"
