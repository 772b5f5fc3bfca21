#include "platform/form/SystemColors.h"
#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

struct Forecast : Holding<Budget> {
    explicit Forecast(const Budget& service) : Holding("Budget", budgetClass(), {service}) {}
};

}  // namespace

class PreviBudgetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankServiceHasItsValues() {
        RegisterBench bench("Budget");
        bench.add({{u"quantite_0"_s, u"3"_s}, {u"entreprise"_s, u"x"_s}, {u"qualitePrix"_s, u"4"_s}});
        bench.shown->blankForm();
        QCOMPARE(bench.shown->selectedRows(), Selection());
        for (int n = 0; n <= 5; ++n) {
            QCOMPARE(bench.text(u"quantite_%1"_s.arg(n)), u"0"_s);
            QCOMPARE(bench.text(u"prixUnitaire_%1"_s.arg(n)), u"0"_s);
        }
        for (int n = 1; n <= 4; ++n) {
            QCOMPARE(bench.text(u"supplement_%1"_s.arg(n)), u""_s);
            QCOMPARE(bench.text(u"unitesCarte_%1"_s.arg(n)), u"0"_s);
            QCOMPARE(bench.text(u"prixCarte_%1"_s.arg(n)), u"0"_s);
            QCOMPARE(bench.text(u"prixUnite_%1Field"_s.arg(n)), u""_s);
        }
        QCOMPARE(bench.text(u"entrepriseField"_s), u""_s);
        QCOMPARE(bench.tag(u"qualitePrixSlider"_s), 0);
        QCOMPARE(bench.date(u"miseAJourField"_s), u""_s);
        const int updated = bench.at(u"miseAJourField"_s);
        QCOMPARE(bench.form().shownText(updated, bench.desk.strings), u"--/--/----"_s);
        bench.form().press(u"resetDateToNow"_s);
        QCOMPARE(bench.date(u"miseAJourField"_s), u"2016-06-07T14:30:00"_s);
        QCOMPARE(bench.form().shownText(updated, bench.desk.strings), u"07/06/2016"_s);
    }

    void theTotalIsThatOfTheFirstFiveLines() {
        RegisterBench bench("Budget");
        bench.fill(u"quantite_0"_s, u"2"_s);
        bench.fill(u"prixUnitaire_0"_s, u"30"_s);
        QCOMPARE(bench.text(u"totalField"_s), u"60"_s);
        bench.fill(u"quantite_1"_s, u"1"_s);
        bench.fill(u"prixUnitaire_1"_s, u"5"_s);
        QCOMPARE(bench.text(u"totalField"_s), u"65"_s);
        bench.fill(u"quantite_5"_s, u"7"_s);
        bench.fill(u"prixUnitaire_5"_s, u"100"_s);
        QCOMPARE(bench.text(u"totalField"_s), u"65"_s);
        bench.fill(u"quantite_4"_s, u"3"_s);
        bench.fill(u"prixUnitaire_4"_s, u"0,5"_s);
        QCOMPARE(bench.text(u"totalField"_s), u"66.5"_s);
    }

    void aCardsUnitHasItsPrice() {
        RegisterBench bench("Budget");
        bench.fill(u"unitesCarte_2"_s, u"10"_s);
        bench.fill(u"prixCarte_2"_s, u"245"_s);
        bench.fill(u"prixCarte_3"_s, u"100"_s);
        QCOMPARE(bench.text(u"prixUnite_1Field"_s), u""_s);
        QCOMPARE(bench.text(u"prixUnite_2Field"_s), u"Discount price|24.5"_s);
        QCOMPARE(bench.text(u"prixUnite_3Field"_s), u""_s);  // 100 for 0 units
        bench.desk.strings.setLanguage(Strings::Language::English);
        bench.shown->refresh();
        QCOMPARE(bench.text(u"prixUnite_2Field"_s), u"24.50 € a unit"_s);
    }

    void cardPricesNeedDegressivePrices() {
        RegisterBench bench("Budget");
        for (int n = 1; n <= 4; ++n)
            QVERIFY(!bench.isEnabled(u"unitesCarte_%1"_s.arg(n)) &&
                    !bench.isEnabled(u"prixCarte_%1"_s.arg(n)));
        bench.fill(u"prixDegressif"_s, u"1"_s);
        for (int n = 1; n <= 4; ++n)
            QVERIFY(bench.isEnabled(u"unitesCarte_%1"_s.arg(n)) && bench.isEnabled(u"prixCarte_%1"_s.arg(n)));
    }

    void ratingsHaveWords_data() {
        QTest::addColumn<int>("rating");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("delay");
        QTest::newRow("0") << 0 << u"N/A"_s << u"N/A"_s;
        QTest::newRow("1") << 1 << u"Very bad"_s << u"Very inefficient"_s;
        QTest::newRow("2") << 2 << u"Bad"_s << u"Inefficient"_s;
        QTest::newRow("3") << 3 << u"Medium"_s << u"Medium"_s;
        QTest::newRow("4") << 4 << u"Good"_s << u"Satisfying"_s;
        QTest::newRow("5") << 5 << u"Very good"_s << u"Very satisfying"_s;
        QTest::newRow("7") << 7 << u"Very good"_s << u"Very satisfying"_s;
    }
    void ratingsHaveWords() {
        QFETCH(int, rating);
        RegisterBench bench("Budget");
        bench.fill(u"qualitePrixSlider"_s, QString::number(rating));
        bench.fill(u"delaiSlider"_s, QString::number(rating));
        QTEST(bench.text(u"qualitePrixInfoField"_s), "value");
        QTEST(bench.text(u"delaiInfoField"_s), "delay");
    }

    void ratingsAreStarsInTheTable_data() {
        QTest::addColumn<int>("rating");
        QTest::addColumn<QString>("text");
        QTest::newRow("0") << 0 << u"Cotation 0"_s;
        QTest::newRow("3") << 3 << u"Cotation 3"_s;
        QTest::newRow("5") << 5 << u"Cotation 5"_s;
    }
    void ratingsAreStarsInTheTable() {
        QFETCH(int, rating);
        const Forecast bench(
            with<Budget>({{&Budget::setQualitePrix, rating}, {&Budget::setDelai, 5 - rating}}));
        QTEST(bench.cell(0, u"qualitePrix"_s).text, "text");
        QCOMPARE(bench.cell(0, u"delai"_s).text, u"Cotation %1"_s.arg(5 - rating));
    }

    void plannedExpensesAreRedAndRatingsHaveTheirOwnColour() {
        for (const int planned : {0, 1, 2}) {
            const Forecast bench(with<Budget>({{&Budget::setPrevDepense, planned}, {&Budget::setDelai, 3}}));
            for (const TableColumn& column : bench.shown->tableColumns()) {
                QColor wanted = planned == 1 ? systemcolor::red : systemcolor::gray;
                if (column.identifier == u"prestation"_s || column.identifier == u"delai"_s)
                    wanted = systemcolor::brown;
                if (column.identifier == u"qualitePrix"_s) wanted = systemcolor::gray;
                QCOMPARE(bench.cell(0, column.identifier).color, wanted);
            }
        }
    }

    void aNewServiceNameIsOffered() {
        RegisterBench bench("Budget");
        bench.add();
        bench.desk.prompt.expectBeep();
        bench.desk.prompt.expectQuestion(u"Add item to ComboBox|Fill"_s, 0);
        bench.fill(u"prestation"_s, u"Fill"_s);
        QCOMPARE(bench.desk.prompt.finish(), QStringList());
        QVERIFY(bench.desk.pickLists.list(u"prestations"_s).contains(u"Fill"_s));
        QCOMPARE(bench.record<Budget>(0).prestation(), u"Fill"_s);
    }

    void barsHaveTheirItems() {
        const RegisterBench empty("Budget");
        QCOMPARE(listBar(empty), u"imprimer addPrestation deletePrestation synthese"_s);
        QCOMPARE(editBar(empty), u"addPrestation blankFields synthese"_s);
        QCOMPARE(enabledItems(empty), u"addPrestation"_s);
        const Forecast bench{Budget()};
        QCOMPARE(enabledItems(bench), listBar(bench));
    }

    void whatIsNoListIsTriedAsTheOldestFormat() {
        RegisterBench bench("Budget");
        const QByteArray junk("no archive");
        QVERIFY(failureOf<ArchiveError>([&] { bench.document->loadDataRepresentation(junk, u"Budget"_s); }));
        QCOMPARE(bench.log, QStringList({u"Format non reconnu"_s}));
        QVERIFY(failureOf<ArchiveError>([&] { bench.document->loadDataRepresentation(junk, u"Epaves"_s); }));
        QCOMPARE(bench.log.size(), 1);
        QVERIFY(opensAs(bench, u"Budget"_s));
        QVERIFY(!opensAs(bench, u"Epaves"_s));
    }

    void theCardRepeatsTheThirdPrepaidCard() {
        Budget service = with<Budget>({{&Budget::setQuantite_0, 10},
                                       {&Budget::setUnitesCarte_1, 1},
                                       {&Budget::setUnitesCarte_2, 2},
                                       {&Budget::setUnitesCarte_3, 3},
                                       {&Budget::setUnitesCarte_4, 4},
                                       {&Budget::setQualitePrix, 2}});
        service.setPrestation(u"Dive"_s);
        service.setPrixUnitaire_0(28.9F);
        service.setPrixCarte_3(66.6F);
        service.setSupplement_2(u"Tank"_s);
        service.setPrixUnitaire_2(5);
        const Forecast bench(service);
        QStringList lines = bench.shown->card(0).plainText().split(u'\n', Qt::SkipEmptyParts);
        lines.resize(lines.size() - 2);
        QCOMPARE(lines,
                 QStringList({u"Inventory"_s, u"--------------------"_s, u"Prestation : Dive"_s,
                              u"Price per unit : 28   Quantity : 10"_s, u"Supplement :  0   Quantity : 0"_s,
                              u"Supplement : Tank 5   Quantity : 0"_s, u"Supplement :  0   Quantity : 0"_s,
                              u"Supplement :  0   Quantity : 0"_s, u"Card : 1   Units at : 0 Money"_s,
                              u"Card : 2   Units at : 0 Money"_s, u"Card : 3   Units at : 66 Money"_s,
                              u"Card : 3   Units at : 66 Money"_s, u"Card : 4   Units at : 0 Money"_s,
                              u"Entreprise : "_s, u"Cotation : Bad"_s, u"Delay : N/A"_s, u"Remarks : "_s}));
    }
};

int runPreviBudgetTest(int argc, char** argv) {
    PreviBudgetTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PreviBudgetTest.moc"
