#include "platform/form/SystemColors.h"
#include "registers/RegisterBench.h"
#include "registers/RegisterTests.h"
#include "registers/RegisterToolbars.h"

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

}  // namespace

class InvMaterielTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewCardIsNumberedBehindTheOthers() {
        RegisterBench bench("Materiel");
        bench.add();
        bench.add();
        QCOMPARE(bench.record<Materiel>(0).matosNo(), u"1"_s);
        QCOMPARE(bench.record<Materiel>(1).matosNo(), u"2"_s);
    }

    void aBlankFormHasItsValues() {
        RegisterBench bench("Materiel");
        bench.add({{u"bloc"_s, u"1"_s}, {u"typeMatos"_s, u" "_s}});
        bench.shown->blankForm();
        QCOMPARE(bench.shown->selectedRows(), Selection());
        QCOMPARE(bench.text(u"matosNoField"_s), u"2"_s);
        QCOMPARE(bench.text(u"typeMatosField"_s), u""_s);
        QCOMPARE(bench.date(u"dateAchatField"_s), u"2016-06-07T14:30:00"_s);
        QCOMPARE(bench.text(u"quantiteMatosField"_s), u"1"_s);
        QCOMPARE(bench.date(u"lastRevisionField"_s), u"1900-01-01T00:00:00"_s);
        QCOMPARE(bench.date(u"nextRevisionField"_s), u"1900-01-01T00:00:00"_s);
        for (const char* control :
             {"firstRequalificationDateField", "lastRequalificationField", "nextRequalificationField"})
            QCOMPARE(bench.date(QLatin1String(control)), u""_s);
        QCOMPARE(bench.tag(u"noInspectionSwitch"_s), 1);
        for (const char* control : {"blocSwitch", "tivSwitch", "factureMatosSwitch", "equipStatePopUp"})
            QCOMPARE(bench.tag(QLatin1String(control)), 0);
        for (const char* control : {"capaciteBlocField", "pressionServiceField", "pressionEpreuveField"})
            QCOMPARE(bench.text(QLatin1String(control)), u"0"_s);
        QCOMPARE(bench.form().state(bench.at(u"tempsProgress"_s)).level, 0.0);
        QCOMPARE(bench.form().focus(), bench.at(u"notesMatosField"_s));
    }

    // The clock stands at 7 June 2016 14:30 in Paris.
    void theGaugeIsTheShareOfThePeriodThatHasPassed_data() {
        QTest::addColumn<QString>("last");
        QTest::addColumn<QString>("next");
        QTest::addColumn<double>("percent");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("status");
        QTest::newRow("a quarter") << u"2016-06-06T14:30:00"_s << u"2016-06-10T14:30:00"_s << 25.0
                                   << u"25 %"_s << u"Elapsed time"_s;
        QTest::newRow("not begun") << u"2016-06-08T14:30:00"_s << u"2016-06-10T14:30:00"_s << -50.0
                                   << u"-50 %"_s << u"Elapsed time"_s;
        QTest::newRow("just over") << u"2016-06-05T14:30:00"_s << u"2016-06-07T14:30:00"_s << 100.0
                                   << u"100 %"_s << u"Out of date"_s;
        QTest::newRow("twice over") << u"2016-06-03T14:30:00"_s << u"2016-06-05T14:30:00"_s << 200.0
                                    << u"200 %"_s << u"Out of date"_s;
        QTest::newRow("tie") << u"2016-06-07T14:25:00"_s << u"2016-06-07T18:25:00"_s << 25.0 / 12 << u"2 %"_s
                             << u"Elapsed time"_s;
        QTest::newRow("one moment") << u"2016-06-01"_s << u"2016-06-01"_s << 0.0 << u"0 %"_s
                                    << u"Elapsed time"_s;
        QTest::newRow("no end") << u"2016-06-01"_s << u""_s << 0.0 << u"0 %"_s << u"Elapsed time"_s;
    }
    void theGaugeIsTheShareOfThePeriodThatHasPassed() {
        QFETCH(QString, last);
        QFETCH(QString, next);
        QFETCH(double, percent);
        Materiel item;
        item.setLastRevision(Moment::fromIso(last));
        item.setNextRevision(Moment::fromIso(next));
        OneItem bench(item);
        const double level = bench.form().state(bench.at(u"tempsProgress"_s)).level;
        QVERIFY2(std::abs(level - percent) < 1e-9, qPrintable(QString::number(level)));
        QTEST(bench.text(u"tempsField"_s), "text");
        QTEST(bench.text(u"statusField"_s), "status");
        QCOMPARE(bench.cell(0, u"progress"_s).text, QString::number(percent, 'f', 6));
        QCOMPARE(*bench.cell(0, u"progress"_s).gauge, std::clamp(level / 100, 0.0, 1.0));
    }

    void whatNeedsNoInspectionHasAnEmptyGaugeInTheFormOnly() {
        Materiel item;
        item.setNoInspection(1);
        item.setLastRevision(local("2016-06-03T14:30:00"));
        item.setNextRevision(local("2016-06-05T14:30:00"));
        OneItem bench(item);
        QCOMPARE(bench.form().state(bench.at(u"tempsProgress"_s)).level, 0.0);
        QCOMPARE(bench.text(u"statusField"_s), u"Elapsed time"_s);
        QCOMPARE(bench.cell(0, u"progress"_s).text, u"200.000000"_s);
    }

    void theFirst27LettersOfTheWarningAreRed_data() {
        QTest::addColumn<Strings::Language>("language");
        QTest::newRow("English") << Strings::Language::English;
        QTest::newRow("French") << Strings::Language::French;
    }
    void theFirst27LettersOfTheWarningAreRed() {
        QFETCH(Strings::Language, language);
        Materiel item;
        item.setLastRevision(local("2010-01-01"));
        item.setNextRevision(local("2011-01-01"));
        RegisterBench bench("Materiel", language);
        bench.load<Materiel>({item}, materielClass());
        const QList<TextRun> runs = bench.form().state(bench.at(u"statusField"_s)).runs;
        QCOMPARE(runs.size(), 2);
        QCOMPARE(runs[0].text.size(), 27);
        QCOMPARE(runs[0].color, systemcolor::red);
        QVERIFY(!runs[1].color.isValid());
    }

    void theGaugeFollowsTheFields() {
        RegisterBench bench("Materiel");
        bench.add();
        bench.fill(u"noInspection"_s, u"0"_s);
        bench.fill(u"nextRevision"_s, u"2016-06-08T14:30:00"_s);
        bench.fill(u"lastRevision"_s, u"2016-06-06T14:30:00"_s);
        QCOMPARE(bench.text(u"tempsField"_s), u"50 %"_s);
    }

    void whatIsShownFollowsTheSwitches_data() {
        QTest::addColumn<bool>("none");
        QTest::addColumn<bool>("cylinder");
        QTest::addColumn<bool>("visual");
        QTest::addColumn<QString>("hidden");
        const QString dates = u"lastRevisionField nextRevisionField "_s;
        const QString tank =
            u"firstRequalificationDateField lastRequalificationField "
            "nextRequalificationField capaciteBlocField pressionServiceField "
            "pressionEpreuveField "_s;
        const QString inspector = u"noTIVField nomTIVField valveRefField "_s;
        QTest::newRow("inspected") << false << false << false << u"tivSwitch "_s + tank + inspector;
        QTest::newRow("cylinder") << false << true << false << inspector;
        QTest::newRow("visually inspected cylinder") << false << true << true << u""_s;
        QTest::newRow("visual without cylinder")
            << false << false << true << u"tivSwitch "_s + tank + inspector;
        QTest::newRow("no inspection")
            << true << false << false << u"blocSwitch tivSwitch "_s + dates + tank + inspector;
        QTest::newRow("a cylinder without inspection, as a file may hold it")
            << true << true << true << u"blocSwitch tivSwitch "_s + dates;
    }
    void whatIsShownFollowsTheSwitches() {
        QFETCH(bool, none);
        QFETCH(bool, cylinder);
        QFETCH(bool, visual);
        QFETCH(QString, hidden);
        Materiel item;
        item.setNoInspection(none ? 1 : 0);
        item.setBloc(cylinder ? 1 : 0);
        item.setTiv(visual ? 1 : 0);
        OneItem bench(item);
        QStringList found;
        for (int i = 0; i < bench.form().count(); ++i)
            if (bench.form().state(i).hidden) found << QLatin1String(bench.form().spec(i).name);
        QStringList expected = hidden.split(u' ', Qt::SkipEmptyParts);
        found.sort();
        expected.sort();
        QCOMPARE(found, expected);
    }

    void turningNoInspectionOnTurnsTheCylinderOff() {
        RegisterBench bench("Materiel");
        bench.add({{u"noInspection"_s, u"0"_s}, {u"bloc"_s, u"1"_s}, {u"tiv"_s, u"1"_s}});
        QCOMPARE(bench.record<Materiel>(0).bloc(), 1);
        QCOMPARE(bench.record<Materiel>(0).tiv(), 1);
        bench.set(0, {{u"noInspection"_s, u"1"_s}});
        QCOMPARE(bench.record<Materiel>(0).bloc(), 0);
        QCOMPARE(bench.record<Materiel>(0).tiv(), 0);
    }

    void lookingAtAnOddItemChangesNothing() {
        Materiel item;
        item.setNoInspection(1);
        item.setBloc(1);
        item.setEquipState(42);
        item.setResultTIV(-3);
        OneItem bench(item);
        bench.shown->selectRows({0});
        bench.shown->updateRecord();
        QVERIFY(!bench.document->isEdited());
    }

    void theTypeIsComparedWithItsLocalisedName() {
        RegisterBench bench("Materiel", Strings::Language::French);
        const QByteArray bytes = writeRecords<Materiel>({}, materielClass());
        const QString inFrench = bench.desk.strings.text({"Main", "Materiel"});
        QVERIFY(bench.document->kind().isLocalised);
        QVERIFY(bench.document->loadDataRepresentation(bytes, inFrench));
        QVERIFY(!bench.document->loadDataRepresentation(bytes, u"Epaves"_s));
    }

    void toolsThatNeedRecordsWaitForThem() {
        RegisterBench bench("Materiel");
        for (const char* item : {"imprimer", "deleteMatos", "synthese"})
            QVERIFY2(!validateToolbarItem(*bench.shown, item), item);
        for (const char* item : {"saveDocument", "addMatos", "blankFields"})
            QVERIFY2(validateToolbarItem(*bench.shown, item), item);
        bench.add();
        for (const char* item : {"imprimer", "deleteMatos", "synthese"})
            QVERIFY2(validateToolbarItem(*bench.shown, item), item);
    }

    void theCardTellsAsMuchAsTheItemHas_data() {
        QTest::addColumn<int>("none");
        QTest::addColumn<int>("cylinder");
        QTest::addColumn<int>("visual");
        QTest::addColumn<QStringList>("labels");
        const QStringList first{u"Card No"_s,   u"Equipment type"_s, u"Trade mark"_s,
                                u"Serial No"_s, u"Purchase date"_s,  u"Purchase location"_s,
                                u"Quantity"_s,  u"Price"_s,          u"Facture"_s};
        const QStringList inspection{u"Last inspection"_s, u"Next inspection"_s};
        const QStringList tank{u"Capacity"_s,           u"Service pressure"_s,
                               u"Test pressure"_s,      u"First test pressure"_s,
                               u"Last test pressure"_s, u"Next test pressure"_s};
        const QStringList visually{u"TIV technician"_s, u"TIV No"_s};
        const QStringList last{u"Equipment state"_s, u"Remarks"_s};
        QTest::newRow("not inspected") << 1 << 1 << 1 << first + last;
        QTest::newRow("inspected") << 0 << 0 << 1 << first + inspection + last;
        QTest::newRow("cylinder") << 0 << 1 << 0 << first + inspection + tank + last;
        QTest::newRow("visually") << 0 << 1 << 1 << first + inspection + tank + visually + last;
    }
    void theCardTellsAsMuchAsTheItemHas() {
        QFETCH(int, none);
        QFETCH(int, cylinder);
        QFETCH(int, visual);
        Materiel item;
        item.setNoInspection(none);
        item.setBloc(cylinder);
        item.setTiv(visual);
        item.setCapaciteBloc(12.7F);
        item.setFactureMatos(1);
        OneItem bench(item);
        const QString card = bench.shown->card(0).plainText();
        QStringList labels;
        for (const QString& line : card.split(u'\n'))
            if (line.contains(u" : "_s) && !line.contains(u"%@"_s)) labels << line.section(u" : "_s, 0, 0);
        QTEST(labels, "labels");
        QVERIFY(card.startsWith(u"Inventory\n\n--------------------\n"_s));
        QVERIFY(card.contains(u"Facture : Yes\n"_s));
        QVERIFY(!cylinder || none || card.contains(u"Capacity : 12\n"_s));
    }

    void anOldRequalificationTextDoesNotDisturb() {
        Materiel item;
        item.setFirstRequalification(u"mai 2001"_s);
        OneItem bench(item);
        bench.set(0, {{u"notesMatos"_s, u"x"_s}});
        QCOMPARE(bench.record<Materiel>(0).notesMatos(), u"x"_s);
    }
};

int runInvMaterielTest(int argc, char** argv) {
    InvMaterielTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "InvMaterielTest.moc"
