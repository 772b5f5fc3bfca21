#include "platform/document/DocumentError.h"
#include "platform/form/SystemColors.h"
#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

Moment local(const char* iso) {
    return Moment::fromIso(QLatin1String(iso));
}

struct Interventions : Holding<Rebreather> {
    explicit Interventions(const QList<Rebreather>& list) : Holding("Rebreather", rebreatherClass(), list) {}

    double level(const QString& gauge) const { return form().state(at(gauge)).level; }
};

/// An intervention with the first cell fitted on this day.
Rebreather fittedOn(const Moment& day) {
    Rebreather service = with<Rebreather>({{&Rebreather::setCell1, 1}});
    service.setCell1_in(day);
    return service;
}

constexpr const char* operations[] = {"sofnolime", "disinfection", "battery",        "injector",
                                      "valve",     "oRing",        "electronicHead", "scrubber"};

}  // namespace

class RebreatherServTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankInterventionHasItsValues() {
        RegisterBench bench("Rebreather");
        QCOMPARE(bench.date(u"dateField"_s), u"2016-06-07T14:30:00"_s);
        QCOMPARE(bench.text(u"rebreatherTimeField"_s), u"--:--"_s);
        QCOMPARE(bench.date(u"sofnoTimeField"_s), u"2001-01-01T00:00:00"_s);
        QCOMPARE(bench.text(u"mpO2ValueField"_s), u""_s);
        QCOMPARE(bench.tag(u"nbCellsPopUp"_s), 0);
        for (int n = 1; n <= 5; ++n) {
            QCOMPARE(bench.tag(u"cell%1"_s.arg(n)), 0);
            QCOMPARE(bench.text(u"typeCell%1"_s.arg(n)), u""_s);
            QCOMPARE(bench.date(u"cell%1_in"_s.arg(n)), u"1900-01-01T00:00:00"_s);
        }
    }

    void theFirstInterventionHasNoCellsToCarryOver() {
        RegisterBench bench("Rebreather");
        const auto error = failureOf<DocumentError>([&] { bench.add({{u"notes"_s, u"x"_s}}); });
        QVERIFY(error);
        QCOMPARE(sentenceOf(*error),
                 u"there is no earlier intervention to carry cells over from, so none was added"_s);
        QCOMPARE(bench.shown->rowCount(), 0);
        QVERIFY(!bench.document->isEdited() && !bench.document->canUndo());
    }

    void aNewInterventionStartsWithTheCellsFittedNow() {
        Rebreather first, last;
        first.setTypeCell1(u"old"_s);
        last = with<Rebreather>({{&Rebreather::setCell1, 1},
                                 {&Rebreather::setCell5, 1},
                                 {&Rebreather::setSofnolime, 1},
                                 {&Rebreather::setNbCells, 3}});
        last.setTypeCell1(u"OX-17"_s);
        last.setTypeCell5(u"OX-18"_s);
        last.setCell1_in(local("2015-09-26"));
        last.setCell5_in(local("2014-01-02"));
        last.setNotes(u"said"_s);
        Interventions bench({first, last});
        QCOMPARE(bench.add({{u"typeCell5"_s, u"OX-19"_s}}), 2);
        const auto& added = bench.record<Rebreather>(2);
        QCOMPARE(added.cell1(), 1);
        QCOMPARE(added.cell2(), 0);
        QCOMPARE(added.cell5(), 1);
        QCOMPARE(added.typeCell1(), u"OX-17"_s);
        QCOMPARE(added.typeCell5(), u"OX-19"_s);
        QCOMPARE(added.cell1_in().iso(), u"2015-09-26T00:00:00"_s);
        QVERIFY(!added.cell2_in().isPresent());  // as the last one has it
        QCOMPARE(added.cell5_in().iso(), u"2014-01-02T00:00:00"_s);
        // Only the cells are carried over.
        QCOMPARE(added.sofnolime(), 0);
        QCOMPARE(added.nbCells(), 0);
        QCOMPARE(added.notes(), u""_s);
    }

    void aYearOfLifeIs365AndAQuarterDays() {
        Interventions bench({fittedOn(local("2010-01-01"))});
        bench.desk.defaults.store(u"cell life"_s, u"12"_s);
        bench.shown->refresh();
        QCOMPARE(bench.date(u"cell1_outField"_s), u"2011-01-01T06:00:00"_s);
    }

    // Now is 7 June 2016 14:30, summer time: 182 days and 15 hours after 7 December 2015 22:30, winter time.
    void halfOfTheLifeIsHalfOfTheBar() {
        Interventions bench({fittedOn(local("2015-12-07T22:30:00"))});
        bench.desk.defaults.store(u"cell life"_s, 12);
        bench.shown->refresh();
        QCOMPARE(bench.level(u"cell1Progress"_s), 50.0);
        QCOMPARE(bench.date(u"cell1_outField"_s), u"2016-12-07T04:30:00"_s);
    }

    void theEndCountsFromTheRecordTheShareFromTheForm() {
        Interventions bench({fittedOn(local("2015-12-07T22:30:00"))});
        bench.desk.defaults.store(u"cell life"_s, 12);
        bench.fill(u"cell1_in"_s, u"2016-06-07T14:30:00"_s);
        QCOMPARE(bench.date(u"cell1_outField"_s), u"2016-12-07T04:30:00"_s);
        QCOMPARE(bench.level(u"cell1Progress"_s), 0.0);
    }

    // 1000 x 2,629,800 is more than 31 bits hold; what is left of it is -1,665,167,296.
    void monthsAreMultipliedIn32Bits() {
        const Moment day = local("2015-01-01");
        Interventions bench({fittedOn(day)});
        bench.desk.defaults.store(u"cell life"_s, 1000);
        bench.shown->refresh();
        QCOMPARE(bench.form().date(bench.at(u"cell1_outField"_s)).seconds(), day.seconds() - 1665167296.0);
    }

    void noLifeAndNoDateAreNoTrouble() {
        Interventions bench({fittedOn(local("2015-01-01")), fittedOn(Moment())});
        bench.desk.defaults.store(u"cell life"_s, 0);
        bench.shown->selectRows({0});
        QVERIFY(!std::isfinite(bench.level(u"cell1Progress"_s)));
        bench.shown->selectRows({1});
        QCOMPARE(bench.date(u"cell1_outField"_s), u""_s);
        QCOMPARE(bench.level(u"cell1Progress"_s), 0.0);
    }

    void aCellThatIsNotFittedHasNoDates() {
        Interventions bench({Rebreather()});
        for (const char* part : {"cell4_inField", "cell4_outField", "cell4Progress"}) {
            QVERIFY2(bench.isHidden(QLatin1String(part)), part);
            bench.fill(u"cell4"_s, u"1"_s);
            QVERIFY2(!bench.isHidden(QLatin1String(part)), part);
            bench.fill(u"cell4"_s, u"0"_s);
        }
        QVERIFY(!bench.isHidden(u"typeCell4Field"_s));
    }

    void theNumberOfCellsGoesWithTheirReplacement() {
        Interventions bench({Rebreather()});
        QVERIFY(!bench.isEnabled(u"nbCellsPopUp"_s));
        bench.fill(u"cellsSwitch"_s, u"1"_s);
        QVERIFY(bench.isEnabled(u"nbCellsPopUp"_s));
    }

    void operationsAreMarkedWhenTheyWereDone() {
        QList<Rebreather> list;
        for (const int value : {0, 1, 2})
            list << with<Rebreather>({{&Rebreather::setSofnolime, value},
                                      {&Rebreather::setDisinfection, value},
                                      {&Rebreather::setBattery, value},
                                      {&Rebreather::setInjector, value},
                                      {&Rebreather::setValve, value},
                                      {&Rebreather::setORing, value},
                                      {&Rebreather::setElectronicHead, value},
                                      {&Rebreather::setScrubber, value}});
        const Interventions bench(list);
        for (const char* column : operations)
            QCOMPARE(bench.column(QLatin1String(column)), QStringList({u""_s, u"Check"_s, u""_s}));
    }

    void numbersOf0AreNotShown() {
        QList<Rebreather> list{Rebreather(), with<Rebreather>({{&Rebreather::setNbCells, 3}}), Rebreather()};
        list[2].setMpO2Value(8.5F);
        const Interventions bench(list);
        QCOMPARE(bench.column(u"nbCells"_s), QStringList({u""_s, u"3"_s, u""_s}));
        QCOMPARE(bench.column(u"mpO2Value"_s), QStringList({u""_s, u""_s, u"8.5"_s}));
    }

    void theDateIsBrownOperationsGreenTheRestGray() {
        const Interventions bench({Rebreather()});
        QMap<QString, QColor> wanted{{u"date"_s, systemcolor::brown}};
        for (const char* column : operations) wanted[QLatin1String(column)] = systemcolor::green;
        for (const TableColumn& column : bench.shown->tableColumns())
            QCOMPARE(bench.cell(0, column.identifier).color,
                     wanted.value(column.identifier, systemcolor::gray));
    }

    void interventionsAreCounted() {
        QCOMPARE(RegisterBench("Rebreather").text(u"countField"_s), u"Interventions|0"_s);
        QCOMPARE(Interventions({Rebreather()}).text(u"countField"_s), u"One intervention"_s);
        QCOMPARE(Interventions({Rebreather(), Rebreather()}).text(u"countField"_s), u"Interventions|2"_s);
    }

    void barsHaveTheirItems() {
        const RegisterBench empty("Rebreather");
        QCOMPARE(listBar(empty),
                 u"saveDocument imprimer addRebreatherService deleteRebreatherService synthese"_s);
        QCOMPARE(editBar(empty), u"addRebreatherService blankFields synthese"_s);
        QCOMPARE(enabledItems(empty), u"saveDocument addRebreatherService"_s);
        const Interventions bench({Rebreather()});
        QCOMPARE(enabledItems(bench), listBar(bench));
    }

    void opensUnderItsLocalisedTypeOnly() {
        for (const auto language : {Strings::Language::English, Strings::Language::French}) {
            RegisterBench bench("Rebreather", language);
            const QString own = bench.desk.strings.text(Message<>{"Main", "Rebreather"});
            QVERIFY(opensAs(bench, own));
            QVERIFY(!opensAs(bench, u"Rebreather"_s) || own == u"Rebreather"_s);
            QVERIFY(!opensAs(bench, u"Budget"_s));
        }
    }

    void theCardTellsCellsAndWork() {
        Rebreather service = fittedOn(local("2010-01-01"));
        service.setTypeCell1(u"OX-17"_s);
        service.setDate(local("2016-05-21"));
        service.setRebreatherTime(u"78:40"_s);
        service.setSofnoTime(local("03:05"));
        service.setCells(1);
        service.setNbCells(2);
        service.setMpO2(1);
        service.setMpO2Value(8.5F);
        service.setScrubber(1);
        Interventions bench({service});
        bench.desk.defaults.store(u"cell life"_s, 12);
        QStringList lines = bench.shown->card(0).plainText().split(u'\n', Qt::SkipEmptyParts);
        lines.resize(lines.size() - 2);
        const QString dashes = u"----------------------------------------"_s;
        QCOMPARE(lines, QStringList({u"Inventory"_s, u"Cells"_s, u"Cell 1 : OX-17, 01/01/2010 - 01/01/2011"_s,
                                     dashes, u"Date : 21/05/2016"_s, u"Rebreather history"_s,
                                     u"Rebreather time : 78:40"_s, u"Soda time : 03:05 h"_s,
                                     u"Cells replacement : 2"_s, u"MpO2 : 8.5 bar"_s, u"Scrubber"_s,
                                     u"Remarks : "_s, dashes}));
    }
};

int runRebreatherServTest(int argc, char** argv) {
    RebreatherServTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RebreatherServTest.moc"
