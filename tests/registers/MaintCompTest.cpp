#include "platform/form/SystemColors.h"
#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

struct Services : Holding<Compresseur> {
    explicit Services(const Compresseur& service) : Holding("Compresseur", compresseurClass(), {service}) {}
};

constexpr const char* operations[] = {"vidange", "cartouche",     "charbon",  "alumine",
                                      "tamis",   "depoussierage", "controles"};

}  // namespace

class MaintCompTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankServiceHasItsValues() {
        RegisterBench bench("Compresseur");
        bench.add({{u"marque"_s, u"x"_s},
                   {u"vidange"_s, u"1"_s},
                   {u"typeHuile"_s, u"1"_s},
                   {u"anCOUnit"_s, u"1"_s},
                   {u"temps"_s, u"01:30"_s}});
        bench.shown->blankForm();
        QCOMPARE(bench.shown->selectedRows(), Selection());
        for (const char* text : {"marqueField", "modeleField", "cumulTempsField", "notesField"})
            QCOMPARE(bench.text(QLatin1String(text)), u""_s);
        QCOMPARE(bench.date(u"dateField"_s), u"2016-06-07T14:30:00"_s);
        QCOMPARE(bench.date(u"tempsField"_s), u""_s);
        for (const char* tag : {"vidangeSwitch", "typeHuileMatrix", "operationFiltreMatrix",
                                "intSoupapeMatrix", "anCO2UnitPopUp", "anCOUnitPopUp"})
            QCOMPARE(bench.tag(QLatin1String(tag)), 0);
        for (const char* analysis : {"anHuileField", "anCO2Field", "anCOField", "anH2OField"})
            QCOMPARE(bench.text(QLatin1String(analysis)), u"-1"_s);
    }

    void aBlankServiceShowsDashesForItsAnalyses() {
        RegisterBench bench("Compresseur");
        bench.add();
        for (const char* column : {"anHuile", "anCO2", "anCO", "anH2O"})
            QCOMPARE(bench.cell(0, QLatin1String(column)).text, u"-"_s);
    }

    void anAnalysisIsTakenByItsWholePart_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<float>("stored");
        QTest::newRow("dash") << u"-"_s << -1.0F;
        QTest::newRow("below 0, but its whole part is 0") << u"-0.5"_s << -0.5F;
        QTest::newRow("-1") << u"-1"_s << -1.0F;
        QTest::newRow("-1.5") << u"-1.5"_s << -1.0F;
        QTest::newRow("-20") << u"-20"_s << -1.0F;
        QTest::newRow("0") << u"0"_s << 0.0F;
        QTest::newRow("nothing") << u""_s << 0.0F;
        QTest::newRow("comma") << u"0,25"_s << 0.25F;
        QTest::newRow("point") << u"380.5"_s << 380.5F;
    }
    void anAnalysisIsTakenByItsWholePart() {
        QFETCH(QString, typed);
        QFETCH(float, stored);
        RegisterBench bench("Compresseur");
        bench.add({{u"anHuile"_s, typed}, {u"anCO2"_s, typed}, {u"anCO"_s, typed}, {u"anH2O"_s, typed}});
        const auto& service = bench.record<Compresseur>(0);
        QCOMPARE(service.anHuile(), stored);
        QCOMPARE(service.anCO2(), stored);
        QCOMPARE(service.anCO(), stored);
        QCOMPARE(service.anH2O(), stored);
    }

    void analysesAreShownWithTheirUnits_data() {
        QTest::addColumn<float>("value");
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("oil");
        QTest::addColumn<QString>("gas");
        QTest::addColumn<QString>("water");
        QTest::newRow("ml") << 380.5F << 0 << u"380.5 mg/m³"_s << u"380.5 ml/m³"_s << u"380.5 ml/m³"_s;
        QTest::newRow("ppm") << 2.0F << 1 << u"2 mg/m³"_s << u"2 ppm"_s << u"2 ml/m³"_s;
        QTest::newRow("another unit") << 2.5F << 7 << u"2.5 mg/m³"_s << u"2.5"_s << u"2.5 ml/m³"_s;
        QTest::newRow("not measured") << -1.0F << 1 << u"-"_s << u"-"_s << u"-"_s;
        QTest::newRow("a little below 0")
            << -0.5F << 0 << u"-0.5 mg/m³"_s << u"-0.5 ml/m³"_s << u"-0.5 ml/m³"_s;
    }
    void analysesAreShownWithTheirUnits() {
        QFETCH(float, value);
        QFETCH(int, unit);
        Compresseur service =
            with<Compresseur>({{&Compresseur::setAnCO2Unit, unit}, {&Compresseur::setAnCOUnit, unit}});
        service.setAnHuile(value);
        service.setAnCO2(value);
        service.setAnCO(value);
        service.setAnH2O(value);
        const Services bench(service);
        QTEST(bench.cell(0, u"anHuile"_s).text, "oil");
        QTEST(bench.cell(0, u"anCO2"_s).text, "gas");
        QTEST(bench.cell(0, u"anCO"_s).text, "gas");
        QTEST(bench.cell(0, u"anH2O"_s).text, "water");
    }

    void filterAndValvesSayWhatWasDone_data() {
        QTest::addColumn<int>("done");
        QTest::addColumn<int>("work");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("valves");
        QTest::newRow("nothing") << 0 << 1 << u""_s << u""_s;
        QTest::newRow("work 0") << 1 << 0 << u"TableView cleaning"_s << u"TableView verification"_s;
        QTest::newRow("work 1") << 1 << 1 << u"TableView replacement"_s << u"TableView retarage"_s;
        QTest::newRow("work 2") << 1 << 2 << u"TableView cleaning"_s << u"TableView retarage"_s;
    }
    void filterAndValvesSayWhatWasDone() {
        QFETCH(int, done);
        QFETCH(int, work);
        const Services bench(with<Compresseur>({{&Compresseur::setFiltreAir, done},
                                                {&Compresseur::setOperationFiltre, work},
                                                {&Compresseur::setSoupapes, done},
                                                {&Compresseur::setIntSoupape, work}}));
        QTEST(bench.cell(0, u"filtreAir"_s).text, "filter");
        QTEST(bench.cell(0, u"soupapes"_s).text, "valves");
    }

    void operationsAreMarkedWhenTheyWereDone() {
        QList<Compresseur> services;
        for (const int value : {0, 1, 2})
            services << with<Compresseur>({{&Compresseur::setVidange, value},
                                           {&Compresseur::setCartouche, value},
                                           {&Compresseur::setCharbon, value},
                                           {&Compresseur::setAlumine, value},
                                           {&Compresseur::setTamis, value},
                                           {&Compresseur::setDepoussierage, value},
                                           {&Compresseur::setControles, value}});
        const Holding<Compresseur> bench("Compresseur", compresseurClass(), services);
        for (const char* column : operations)
            QCOMPARE(bench.column(QLatin1String(column)), QStringList({u""_s, u"Check"_s, u""_s}));
    }

    void theDateIsBrownOperationsGreenTheRestGray() {
        const Services bench{Compresseur()};
        QMap<QString, QColor> wanted{{u"date"_s, systemcolor::brown}};
        for (const char* column : operations) wanted[QLatin1String(column)] = systemcolor::green;
        for (const TableColumn& column : bench.shown->tableColumns())
            QCOMPARE(bench.cell(0, column.identifier).color,
                     wanted.value(column.identifier, systemcolor::gray));
    }

    void whatWasDoneDecidesWhatCanBeSaidAboutIt() {
        RegisterBench bench("Compresseur");
        const std::pair<const char*, const char*> choices[] = {{"vidange", "typeHuileMatrix"},
                                                               {"filtreAir", "operationFiltreMatrix"},
                                                               {"soupapes", "intSoupapeMatrix"}};
        for (const auto& [done, choice] : choices) {
            QVERIFY2(!bench.isEnabled(QLatin1String(choice)), choice);
            bench.fill(QLatin1String(done), u"1"_s);
            QVERIFY2(bench.isEnabled(QLatin1String(choice)), choice);
        }
    }

    void aNewCartridgeHasAllItsParts() {
        RegisterBench bench("Compresseur");
        bench.fill(u"charbon"_s, u"1"_s);
        bench.fill(u"cartouche"_s, u"1"_s);
        for (const char* part : {"charbonSwitch", "alumineSwitch", "tamisSwitch"})
            QVERIFY2(!bench.isEnabled(QLatin1String(part)), part);
        // Their states count all the same.
        bench.add({{u"charbon"_s, u"1"_s}, {u"cartouche"_s, u"1"_s}});
        QCOMPARE(bench.record<Compresseur>(0).charbon(), 1);
        bench.fill(u"cartouche"_s, u"0"_s);
        for (const char* part : {"charbonSwitch", "alumineSwitch", "tamisSwitch"})
            QVERIFY2(bench.isEnabled(QLatin1String(part)), part);
    }

    void servicesAreCounted() {
        RegisterBench bench("Compresseur");
        QCOMPARE(bench.text(u"countField"_s), u"Revisions|0"_s);
        bench.add();
        QCOMPARE(bench.text(u"countField"_s), u"One revision"_s);
        bench.add();
        QCOMPARE(bench.text(u"countField"_s), u"Revisions|2"_s);
    }

    void theEditBarHasNoEraseButton() {
        RegisterBench bench("Compresseur");
        QCOMPARE(editBar(bench), u"addService synthese"_s);
        QCOMPARE(listBar(bench), u"saveDocument imprimer addService deleteService synthese"_s);
        QCOMPARE(enabledItems(bench), u"saveDocument addService"_s);
        bench.add();
        QCOMPARE(enabledItems(bench), listBar(bench));
    }

    void opensUnderItsOwnTypeOnly() {
        RegisterBench bench("Compresseur");
        QVERIFY(opensAs(bench, u"Compresseur"_s));
        QVERIFY(!opensAs(bench, u"compresseur"_s));
        QVERIFY(!opensAs(bench, u"Budget"_s));
    }

    void theCardTellsWhatWasDoneAndMeasured() {
        Compresseur service = with<Compresseur>({{&Compresseur::setVidange, 1},
                                                 {&Compresseur::setTypeHuile, 1},
                                                 {&Compresseur::setSoupapes, 1},
                                                 {&Compresseur::setAnCOUnit, 1}});
        service.setMarque(u"Ponant Air"_s);
        service.setDate(Moment::fromIso(u"2014-09-20"_s));
        service.setTemps(Moment::fromIso(u"01:05"_s));
        service.setAnHuile(-1);
        service.setAnCO2(380);
        service.setAnCO(2);
        service.setAnH2O(-1);
        const Services bench(service);
        const QString card = bench.shown->card(0).plainText();
        QStringList lines = card.split(u'\n', Qt::SkipEmptyParts);
        lines.resize(lines.size() - 2);  // the file's path and the date
        const QString dashes = u"------------------------------"_s;
        QCOMPARE(lines, QStringList({u"Inventory"_s, u"Trade mark : Ponant Air"_s, u"Model : "_s, dashes,
                                     u"Service : 1"_s, u"Date : 20/09/2014"_s, u"Time : 01 h 05 min."_s,
                                     u"Sum time : "_s, u"Operations"_s, u"Vidange synthesis"_s,
                                     u"Valves : Verification"_s, u"Analyzes"_s, u"Analyse CO2 : 380 ml/m3"_s,
                                     u"Analyse CO : 2 ppm"_s, u"Remarks : "_s, dashes}));
    }
};

int runMaintCompTest(int argc, char** argv) {
    MaintCompTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MaintCompTest.moc"
