#include "platform/form/SystemColors.h"
#include "registers/RegisterTestRows.h"
#include "registers/RegisterTests.h"
#include "registers/RegisterWords.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

struct Firms : Holding<Entreprises> {
    explicit Firms(const Entreprises& firm) : Holding("Entreprises", entreprisesClass(), {firm}) {}
};
struct Clubs : Holding<Structures> {
    explicit Clubs(const Structures& club) : Holding("Structures", structuresClass(), {club}) {}
};

constexpr const char* days[] = {"Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi", "Dimanche"};

QString timeField(const char* day, int n) {
    return u"horaire%1_%2Field"_s.arg(QLatin1String(day)).arg(n);
}

}  // namespace

/// Firms and clubs.
class AddressBooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBlankFirmIsClosedOnSundays() {
        RegisterBench bench("Entreprises");
        for (const char* day : days)
            for (int n = 1; n <= 4; ++n)
                QCOMPARE(bench.text(timeField(day, n)), qstrcmp(day, "Dimanche") == 0 ? u"Closed"_s : u"-"_s);
        for (const char* field :
             {"entrepriseField", "adresseField", "codePostalField", "villeField", "paysField",
              "telephoneField", "faxField", "emailField", "urlField", "activiteField", "remarquesField"})
            QCOMPARE(bench.text(QLatin1String(field)), u""_s);
        QCOMPARE(bench.tag(u"cotationSlider"_s), 0);
        QCOMPARE(bench.text(u"cotationInfoField"_s), u"?"_s);
        QCOMPARE(bench.date(u"miseAJourField"_s), u"2016-06-07T14:30:00"_s);
        bench.fill(u"cotationSlider"_s, u"4"_s);
        QCOMPARE(bench.text(u"cotationInfoField"_s), u"4"_s);
    }

    void aBlankClubHasDashesAllWeek() {
        RegisterBench bench("Structures");
        for (const char* day : days)
            for (int n = 1; n <= 4; ++n) QCOMPARE(bench.text(timeField(day, n)), u"-"_s);
        for (const char* number : {"codePostalField", "baptemeField", "prix_1Field", "prix_5Field",
                                   "prixForm_1Field", "prixForm_6Field", "nbPlongeesField"})
            QCOMPARE(bench.text(QLatin1String(number)), u"0"_s);
        QCOMPARE(bench.text(u"plongee_1Field"_s), u""_s);
        QCOMPARE(bench.date(u"miseAJourField"_s), u"2016-06-07T14:30:00"_s);
    }

    void timesGoWhereTheyBelong() {
        RegisterBench firms("Entreprises");
        RegisterBench clubs("Structures");
        for (const RegisterBench* bench : {&firms, &clubs}) {
            QList<std::pair<QString, QString>> values;
            for (const char* day : days)
                for (int n = 1; n <= 4; ++n) values << std::pair(timeField(day, n), timeField(day, n));
            bench->add(values);
        }
        QCOMPARE(firms.record<Entreprises>(0).horaireLundi_1(), u"horaireLundi_1Field"_s);
        QCOMPARE(firms.record<Entreprises>(0).horaireMercredi_3(), u"horaireMercredi_3Field"_s);
        QCOMPARE(clubs.record<Structures>(0).horaireDimanche_4(), u"horaireDimanche_4Field"_s);
        const QString wednesday =
            u"Wednesday : horaireMercredi_1Field - horaireMercredi_2Field / "
            u"horaireMercredi_3Field - horaireMercredi_4Field\n"_s;
        QVERIFY(firms.shown->card(0).plainText().contains(wednesday));
        QVERIFY(clubs.shown->card(0).plainText().contains(wednesday));
    }

    void theUpdateDatesColourGoesByTheCardsAge_data() {
        QTest::addColumn<double>("age");
        QTest::addColumn<QColor>("color");
        QTest::newRow("to come") << -86400.0 << systemcolor::gray;
        QTest::newRow("now") << 0.0 << systemcolor::gray;
        QTest::newRow("a second before a year") << 31557599.0 << systemcolor::gray;
        QTest::newRow("just before a year") << 31557599.9 << systemcolor::gray;
        QTest::newRow("a year") << 31557600.0 << QColor();
        QTest::newRow("a year and a bit") << 31557600.9 << QColor();
        QTest::newRow("a second more") << 31557601.0 << systemcolor::orange;
        QTest::newRow("a second before two years") << 63115199.0 << systemcolor::orange;
        QTest::newRow("two years") << 63115200.0 << QColor();
        QTest::newRow("a second over two years") << 63115201.0 << registerwords::alarmRed;
        QTest::newRow("a century") << 3.2e9 << registerwords::alarmRed;
    }
    void theUpdateDatesColourGoesByTheCardsAge() {
        QFETCH(double, age);
        const double now = Moment::fromIso(u"2016-06-07T14:30:00"_s).seconds();
        Entreprises firm;
        firm.setMiseAJour(Moment::fromSeconds(now - age));
        const Firms bench(firm);
        QTEST(bench.cell(0, u"miseAJour"_s).color, "color");
    }

    void ratingsAreStarsAndBrown_data() {
        QTest::addColumn<int>("rating");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("firm");
        QTest::addColumn<QColor>("club");
        QTest::newRow("0") << 0 << u"Cotation 0"_s << systemcolor::gray << systemcolor::black;
        QTest::newRow("1") << 1 << u"Cotation 1"_s << systemcolor::brown << systemcolor::brown;
        QTest::newRow("5") << 5 << u"Cotation 5"_s << systemcolor::brown << systemcolor::brown;
        QTest::newRow("6") << 6 << u""_s << systemcolor::brown << systemcolor::brown;
    }
    void ratingsAreStarsAndBrown() {
        QFETCH(int, rating);
        const Firms firms(with<Entreprises>({{&Entreprises::setCotation, rating}}));
        const Clubs clubs(with<Structures>({{&Structures::setCotation, rating}}));
        QTEST(firms.cell(0, u"cotation"_s).text, "text");
        QTEST(clubs.cell(0, u"cotation"_s).text, "text");
        QTEST(firms.cell(0, u"cotation"_s).color, "firm");
        QTEST(clubs.cell(0, u"cotation"_s).color, "club");
        QCOMPARE(firms.cell(0, u"entreprise"_s).color, systemcolor::brown);
        QCOMPARE(clubs.cell(0, u"nom"_s).color, systemcolor::brown);
        QVERIFY(!firms.cell(0, u"ville"_s).color.isValid() && !clubs.cell(0, u"ville"_s).color.isValid());
    }

    void aClubsRatingHasTheBudgetsWords_data() {
        QTest::addColumn<int>("rating");
        QTest::addColumn<QString>("words");
        QTest::newRow("0") << 0 << u"N/A"_s;
        QTest::newRow("1") << 1 << u"Very bad"_s;
        QTest::newRow("2") << 2 << u"Bad"_s;
        QTest::newRow("3") << 3 << u"Medium"_s;
        QTest::newRow("4") << 4 << u"Good"_s;
        QTest::newRow("5") << 5 << u"Very good"_s;
        QTest::newRow("9") << 9 << u"Very good"_s;
    }
    void aClubsRatingHasTheBudgetsWords() {
        QFETCH(int, rating);
        RegisterBench bench("Structures");
        bench.fill(u"cotationSlider"_s, QString::number(rating));
        QTEST(bench.text(u"cotationInfoField"_s), "words");
    }

    void aFirmsPostalCodeIsATextAClubsANumber() {
        RegisterBench firms("Entreprises");
        firms.add({{u"codePostal"_s, u"06300"_s}});
        QCOMPARE(firms.record<Entreprises>(0).codePostal(), u"06300"_s);
        RegisterBench clubs("Structures");
        clubs.add({{u"codePostal"_s, u"06300"_s}});
        QCOMPARE(clubs.record<Structures>(0).codePostal(), 6300);
        QCOMPARE(clubs.text(u"codePostalField"_s), u"6300"_s);
    }

    void anyTypeNameOpensThem() {
        for (const char* type : {"Entreprises", "Structures"}) {
            RegisterBench bench(type);
            for (const QString& name : {QString::fromLatin1(type), u"Budget"_s, u""_s, u"anything"_s})
                QVERIFY(opensAs(bench, name));
        }
    }

    void barsHaveTheirItems() {
        const RegisterBench firms("Entreprises");
        QCOMPARE(listBar(firms), u"imprimer addFirm deleteFirm synthese"_s);
        QCOMPARE(editBar(firms), u"addFirm blankFields synthese"_s);
        QCOMPARE(enabledItems(firms), u"addFirm"_s);
        QVERIFY(!validateToolbarItem(*firms.shown, "insertFirm"));
        QVERIFY(!validateToolbarItem(*firms.shown, "updateFirm"));
        QCOMPARE(enabledItems(Firms(Entreprises())), listBar(firms));
        const RegisterBench clubs("Structures");
        QCOMPARE(listBar(clubs), u"saveDocument imprimer addStructure deleteStructure synthese"_s);
        QCOMPARE(editBar(clubs), u"addStructure blankFields synthese saveDocument"_s);
        QCOMPARE(enabledItems(clubs), u"saveDocument addStructure"_s);
        QCOMPARE(enabledItems(Clubs(Structures())), listBar(clubs));
    }

    void aNewActivityIsOffered() {
        RegisterBench bench("Entreprises");
        bench.add();
        bench.desk.prompt.expectBeep();
        bench.desk.prompt.expectQuestion(u"Add item to ComboBox|Towing"_s, 0);
        bench.fill(u"activite"_s, u"Towing"_s);
        QCOMPARE(bench.desk.prompt.finish(), QStringList());
        QVERIFY(bench.desk.pickLists.list(u"activite"_s).contains(u"Towing"_s));
    }

    void aFirmsCardHasItsAddressOnOneLine() {
        Entreprises firm;
        firm.setEntreprise(u"Le Palier"_s);
        firm.setAdresse(u"3 rue des Forges"_s);
        firm.setCodePostal(u"29200"_s);
        firm.setVille(u"Brest"_s);
        firm.setPays(u"France"_s);
        firm.setMiseAJour(Moment::fromIso(u"2015-03-14"_s));
        const QString card = Firms(firm).shown->card(0).plainText();
        QVERIFY(
            card.startsWith(u"Inventory\n------------------------------\nName : Le Palier\n"
                            u"Address : 3 rue des Forges 29200 Brest France\nPhone : \n"_s));
        QVERIFY(card.contains(u"Remarks : \nUpdate : 14/03/2015\n"_s));
    }

    void aClubsCardHasItsPrices() {
        Structures club;
        club.setBapteme(35);
        club.setPlongee_1(u"Night dive"_s);
        club.setPrix_1(28.5F);
        club.setFormation_6(u"Nitrox"_s);
        club.setNbPlongees(64);
        const QString card = Clubs(club).shown->card(0).plainText();
        // Five offers and six courses, also those that nobody filled in.
        const QString untold = u" : 0.00 €\n"_s;
        QVERIFY2(card.contains(u"Prices\nBapteme : 35.00 €\nNight dive : 28.50 €\n"_s +
                               untold.repeated(4 + 5) + u"Nitrox : 0.00 €\n"_s),
                 qPrintable(card));
        QVERIFY(card.contains(u"NBDives : 64\nRemarks : \n"_s));
    }
};

int runAddressBooksTest(int argc, char** argv) {
    AddressBooksTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "AddressBooksTest.moc"
