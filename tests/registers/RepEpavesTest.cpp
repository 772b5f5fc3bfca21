#include "registers/RegisterBench.h"
#include "registers/RegisterTests.h"
#include "registers/RegisterToolbars.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class RepEpavesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankFormHasItsValues() {
        RegisterBench bench("Epaves");
        bench.shown->blankForm();
        for (const char* control : {"nomField", "typeField", "jaugeField", "pointHautField", "pointBasField",
                                    "armateurField", "lieuField", "notesField", "relevement3Field"}) {
            QVERIFY2(!bench.text(QLatin1String(control)).isNull(), control);
            QCOMPARE(bench.text(QLatin1String(control)), u""_s);
        }
        QCOMPARE(bench.text(u"dateConstructionField"_s), u"--/--/----"_s);
        QCOMPARE(bench.text(u"dateNaufrageField"_s), u"--/--/----"_s);
        QCOMPARE(bench.text(u"longueurField"_s), u"-1"_s);
        QCOMPARE(bench.text(u"largeurField"_s), u"-1"_s);
        QCOMPARE(bench.text(u"orientationField"_s), u"0"_s);
        QCOMPARE(bench.text(u"gpsField"_s), u"GPS template"_s);
        QCOMPARE(bench.date(u"miseAJourField"_s), u"2016-06-07T14:30:00"_s);
        QCOMPARE(bench.date(u"dateVisiteField"_s), u"2016-06-07T14:30:00"_s);
        for (const char* control :
             {"materiauPopUp", "propulsionPopUp", "puissancePopUp", "inclinaisonPopUp", "gpsSystemPopUp",
              "accesPopUp", "localisationPopUp", "orientationSwitch", "accesBordSwitch", "aVisiterSwitch",
              "interetSlider", "techniciteSlider", "orientationSlider"})
            QCOMPARE(bench.tag(QLatin1String(control)), 0);
        QVERIFY(bench.form().state(bench.at(u"photoWell"_s)).image.isNull());
        QCOMPARE(bench.form().focus(), bench.at(u"notesField"_s));
    }

    void masterAndCargoStayInABlankForm() {
        RegisterBench bench("Epaves");
        bench.add({{u"capitaineField"_s, u"Le Goff"_s},
                   {u"chargementField"_s, u"coal"_s},
                   {u"equipageField"_s, u"12"_s}});
        bench.add();
        QCOMPARE(bench.record<Epaves>(1).capitaine(), u"Le Goff"_s);
        QCOMPARE(bench.record<Epaves>(1).chargement(), u"coal"_s);
        QCOMPARE(bench.record<Epaves>(1).equipage(), u""_s);
    }

    void erasingTheFormKeepsTheSelection() {
        RegisterBench bench("Epaves");
        bench.add({{u"nomField"_s, u"a"_s}});
        bench.form().press(u"blankFields"_s);
        QCOMPARE(bench.shown->selectedRows(), Selection{0});
        bench.shown->updateRecord();
        QCOMPARE(bench.record<Epaves>(0).nom(), u""_s);
    }

    void depthsAreReadByOneRule_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<float>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("dash") << u"-"_s << -1.0F << u"-"_s;
        QTest::newRow("negative") << u"-7"_s << -1.0F << u"-"_s;
        QTest::newRow("just below zero") << u"-0,4"_s << -1.0F << u"-"_s;
        QTest::newRow("empty") << u""_s << 0.0F << u"0"_s;
        QTest::newRow("comma") << u"12,5"_s << 12.5F << u"12.5"_s;
        QTest::newRow("unit behind") << u"31 m"_s << 31.0F << u"31"_s;
    }
    void depthsAreReadByOneRule() {
        QFETCH(QString, typed);
        for (const QString& control : {u"pointHautField"_s, u"pointBasField"_s}) {
            RegisterBench bench("Epaves");
            bench.add({{control, typed}});
            const Epaves& wreck = bench.record<Epaves>(0);
            QTEST(control == u"pointHautField"_s ? wreck.pointHaut() : wreck.pointBas(), "stored");
            QTEST(bench.text(control), "shown");
        }
    }

    void lengthIsTakenAsItIsTyped() {
        RegisterBench bench("Epaves");
        bench.add({{u"longueurField"_s, u"-3"_s}, {u"largeurField"_s, u"8,25"_s}});
        QCOMPARE(bench.record<Epaves>(0).longueur(), -3.0F);
        QCOMPARE(bench.record<Epaves>(0).largeur(), 8.25F);
    }

    void theHeadingCanBeSetWhileThereIsOne() {
        RegisterBench bench("Epaves");
        bench.add();
        QVERIFY(!bench.isEnabled(u"orientationField"_s));
        QVERIFY(!bench.isEnabled(u"orientationSlider"_s));
        bench.fill(u"orientationSwitch"_s, u"1"_s);
        QVERIFY(bench.isEnabled(u"orientationField"_s));
        bench.fill(u"orientationField"_s, u"90"_s);
        QCOMPARE(bench.tag(u"orientationSlider"_s), 90);
        bench.fill(u"orientationSlider"_s, u"270"_s);
        QCOMPARE(bench.text(u"orientationField"_s), u"270"_s);
        // The slider stores, typing does not.
        QCOMPARE(bench.record<Epaves>(0).orientation(), 270);
        QCOMPARE(bench.record<Epaves>(0).orientationSwitch(), 1);
    }

    void theVisitIsHiddenWhileItIsStillToCome() {
        RegisterBench bench("Epaves");
        bench.shown->blankForm();
        QVERIFY(!bench.isHidden(u"dateVisiteField"_s));
        bench.fill(u"aVisiterSwitch"_s, u"1"_s);
        QVERIFY(bench.isHidden(u"dateVisiteField"_s));
    }

    void aRatingOfZeroIsAQuestionMark() {
        RegisterBench bench("Epaves");
        bench.shown->blankForm();
        QCOMPARE(bench.text(u"interetInfoField"_s), u"?"_s);
        bench.fill(u"techniciteSlider"_s, u"4"_s);
        QCOMPARE(bench.text(u"techniciteInfoField"_s), u"4"_s);
    }

    void theUpdateDateCanBeSetToNow() {
        RegisterBench bench("Epaves");
        bench.fill(u"miseAJourField"_s, u"2001-02-03"_s);
        bench.form().press(u"resetDateToNow"_s);
        QCOMPARE(bench.date(u"miseAJourField"_s), u"2016-06-07T14:30:00"_s);
    }

    void theThirdBearingIsTheFirstAfterSaving() {
        RegisterBench bench("Epaves");
        bench.add(
            {{u"relevement1"_s, u"church"_s}, {u"relevement2"_s, u"mill"_s}, {u"relevement3"_s, u"buoy"_s}});
        QCOMPARE(bench.record<Epaves>(0).relevement3(), u"buoy"_s);
        const QByteArray saved = bench.document->dataRepresentationOfType(u"Epaves"_s);
        RegisterBench again("Epaves");
        again.document->readBytes(saved, u"Epaves"_s);
        QCOMPARE(again.record<Epaves>(0).relevement1(), u"church"_s);
        QCOMPARE(again.record<Epaves>(0).relevement2(), u"mill"_s);
        QCOMPARE(again.record<Epaves>(0).relevement3(), u"church"_s);
    }

    void aThirdBearingOfItsOwnIsNoEditEachTimeTheFormIsStored() {
        RegisterBench bench("Epaves");
        bench.add({{u"relevement1"_s, u"church"_s}, {u"relevement3"_s, u"buoy"_s}});
        bench.document->undo();
        bench.document->redo();
        bench.shown->selectRows({0});
        bench.shown->updateRecord();
        bench.document->undo();
        QCOMPARE(bench.shown->rowCount(), 0);
    }

    void anotherTypeIsRefusedAfterTheListWasReplaced() {
        RegisterBench bench("Epaves");
        Epaves wreck;
        wreck.setNom(u"a"_s);
        const QByteArray bytes = writeRecords<Epaves>({std::make_shared<const Epaves>(wreck)}, epavesClass());
        QVERIFY(!bench.document->loadDataRepresentation(bytes, u"Materiel"_s));
        QCOMPARE(bench.column(u"nom"_s), QStringList{u"a"_s});
        QVERIFY(bench.document->loadDataRepresentation(bytes, u"Epaves"_s));
        QVERIFY(!bench.document->dataRepresentationOfType(u"anything"_s).isNull());
    }

    void theToolbarsHaveTheirItems() {
        RegisterBench bench("Epaves");
        const RegisterDesign& design = bench.shown->design();
        QStringList items, labels;
        for (const ToolbarItem& item : toolbarItems(design, design.listBar)) {
            items << QLatin1String(item.identifier);
            labels << bench.desk.strings.text(item.look.label);
        }
        QCOMPARE(QLatin1String(design.listBar.identifier), "wreckTableViewWindowToolbar"_L1);
        QCOMPARE(items, u"saveDocument imprimer addWreck deleteWreck synthese"_s.split(u' '));
        QCOMPARE(labels, QStringList({u"Save"_s, u"Print"_s, u"Add"_s, u"Delete"_s, u"Synthesis card"_s}));
        items.clear();
        for (const ToolbarItem& item : toolbarItems(design, design.editBar))
            items << QLatin1String(item.identifier);
        QCOMPARE(QLatin1String(design.editBar.identifier), "wreckEditWindowToolbar"_L1);
        QCOMPARE(items, u"addWreck blankFields synthese"_s.split(u' '));
    }

    void deleteAndCardAreEnabledByTheDiversWrecksNotByTheRegister() {
        RegisterBench bench("Epaves");
        bench.add();
        while (!bench.desk.pickLists.list(u"epaves"_s).isEmpty())
            bench.desk.pickLists.removeAt(u"epaves"_s, {0});
        QVERIFY(!validateToolbarItem(*bench.shown, "deleteWreck"));
        QVERIFY(!validateToolbarItem(*bench.shown, "synthese"));
        for (const char* item : {"saveDocument", "imprimer", "addWreck", "blankFields"})
            QVERIFY(validateToolbarItem(*bench.shown, item));
        RegisterBench empty("Epaves");
        empty.desk.pickLists.append(u"epaves"_s, u"Liberty"_s);
        QVERIFY(validateToolbarItem(*empty.shown, "deleteWreck"));
        QVERIFY(validateToolbarItem(*empty.shown, "synthese"));
    }

    void theCardHasItsLinesInOrder() {
        RegisterBench bench("Epaves");
        bench.add({{u"nom"_s, u"Elster"_s},
                   {u"propulsion"_s, u"6"_s},
                   {u"materiau"_s, u"2"_s},
                   {u"puissance"_s, u"750"_s},
                   {u"puissancePopUp"_s, u"4"_s},
                   {u"pointHaut"_s, u"12.5"_s},
                   {u"orientationSwitch"_s, u"1"_s},
                   {u"orientation"_s, u"45"_s},
                   {u"gps"_s, u"48 N"_s},
                   {u"gpsSystem"_s, u"1"_s},
                   {u"acces"_s, u"3"_s},
                   {u"interet"_s, u"4"_s},
                   {u"dateVisite"_s, u"2015-08-09"_s},
                   {u"notes"_s, u"deep"_s}});
        const QString card = bench.shown->card(0).plainText();
        qsizetype from = 0;
        for (const char* part : {"Wrecks\n--------------------\nWreck name : Elster\n",
                                 "Characteristics\n",
                                 "Wreck material : Iron",
                                 "Wreck propulsion : Steam",
                                 "Wreck power : 750 ihp",
                                 "High depth : 12.5 Depth unit",
                                 "Low depth : 0 Depth unit",
                                 "Orientation : 45 Degree",
                                 "Inclination : N/A",
                                 "Historic\n",
                                 "Build date : --/--/----",
                                 "Updated on : 07/06/2016",
                                 "Localisation title\n",
                                 "GPS : 48 N (WGS84)",
                                 "Access : Difficult",
                                 "Localisation : N/A",
                                 "Interest : Cotation 4",
                                 "Difficulty : N/A",
                                 "Land marks\n",
                                 "Land mark 3 : \n",
                                 "First visit date : 09/08/2015",
                                 "Remarks : deep",
                                 "--------------------\n",
                                 "\nFile dir : %@|",
                                 "\n\nEdition date : %@|07/06/2016"}) {
            const qsizetype found = card.indexOf(QString::fromUtf8(part), from);
            QVERIFY2(found >= 0, qPrintable(u"no \"%1\" in:\n%2"_s.arg(QString::fromUtf8(part), card)));
            from = found;
        }
    }

    void aCardTakesAnyCode() {
        for (const int code : {-1, 10, 777, INT_MIN, INT_MAX}) {
            Epaves wreck;
            for (const auto set :
                 {&Epaves::setMateriau, &Epaves::setPropulsion, &Epaves::setPuissancePopUp,
                  &Epaves::setInclinaison, &Epaves::setAcces, &Epaves::setLocalisation, &Epaves::setInteret,
                  &Epaves::setTechnicite, &Epaves::setGpsSystem, &Epaves::setOrientation})
                (wreck.*set)(code);
            RegisterBench bench("Epaves");
            bench.load<Epaves>({wreck}, epavesClass());
            QVERIFY(bench.shown->card(0).plainText().contains(u"Wreck propulsion :  N/A"_s));
        }
    }
};

int runRepEpavesTest(int argc, char** argv) {
    RepEpavesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RepEpavesTest.moc"
