#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

using Search = void (Carnet::*)();

/// Searching the logbook: what is selected, what is said, and what surrounds it.
class CarnetSearchTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    Carnet& carnet() { return *_book->carnet; }
    QString found() { return carnet().panel().text(panelcontrol::found); }
    void search(const QString& text, Search action) {
        carnet().panel().setText(panelcontrol::search, text);
        (carnet().*action)();
    }

    static QList<Plongee> dives() {
        QList<Plongee> dives{diveNumbered(1), diveNumbered(2), diveNumbered(3), diveNumbered(4)};
        dives[0].setNotes(u"Deux CONGRES et un homard"_s);
        dives[1].setNotes(u"rien"_s);
        dives[2].setNotes(u"un congre"_s);
        dives[3].setNotes(u""_s);
        for (Plongee& dive : dives) {
            dive.setBateau(u"Ti Morlo"_s);
            dive.setEpaves(u"Rubis"_s);
            dive.setPartenaires(u"Yann"_s);
        }
        dives[1].setBateau(Text());  // absent
        dives[2].setEpaves(u"Élie Monnier"_s);
        return dives;
    }

private Q_SLOTS:
    void init() {
        _book = std::make_unique<Logbook>();
        _book->add({{u"bateau"_s, u"Étoile de mer"_s}, {u"notes"_s, u"A turtle, 3 rays."_s}});
        _book->add(
            {{u"bateau"_s, u"Kraken"_s}, {u"epaves"_s, u"Donator"_s}, {u"partenaires"_s, u"Zoé, Anaïs"_s}});
        _book->add(
            {{u"notes"_s, u"Two TURTLES"_s}, {u"partenaires"_s, u"zoé"_s}, {u"ordinateur"_s, u"ordi"_s}});
        carnet().select({0});
    }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void matchesAreSelectedAndCounted_data() {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Selection>("rows");
        QTest::addColumn<QString>("said");
        QTest::newRow("upper and lower case alike")
            << u"notes"_s << u"congre"_s << Selection{0, 2} << u"Found dives|2"_s;
        QTest::newRow("one") << u"notes"_s << u"homard"_s << Selection{0} << u"One dive found"_s;
        QTest::newRow("none") << u"notes"_s << u"mérou"_s << Selection{} << u"Found dives|0"_s;
        QTest::newRow("a dive without the field matches")
            << u"bateau"_s << u"zodiac"_s << Selection{1} << u"One dive found"_s;
        QTest::newRow("with others") << u"bateau"_s << u"morlo"_s << Selection{0, 1, 2, 3}
                                     << u"Found dives|4"_s;
        QTest::newRow("accents in capitals")
            << u"epaves"_s << u"éLIE"_s << Selection{2} << u"One dive found"_s;
        QTest::newRow("partners") << u"partenaires"_s << u"yan"_s << Selection{0, 1, 2, 3}
                                  << u"Found dives|4"_s;
        QTest::newRow("the empty text is in every text")
            << u"notes"_s << u""_s << Selection{0, 1, 2, 3} << u"Found dives|4"_s;
    }
    void matchesAreSelectedAndCounted() {
        QFETCH(QString, field);
        QFETCH(QString, text);
        TestDesk desk;
        desk.strings.setLanguage(Strings::Language::Keys);
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, dives());
        carnet->select({1});
        carnet->panel().setText(panelcontrol::search, text);
        carnet->findTextWithField(field);
        QTEST(carnet->selection(), "rows");
        QTEST(carnet->panel().text(panelcontrol::found), "said");
        QVERIFY(!carnet->isEdited());
    }

    void theActionsNameTheirFields() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, dives());
        carnet->panel().setText(panelcontrol::search, u"congre"_s);
        carnet->findInNotes();
        QCOMPARE(carnet->selection(), (Selection{0, 2}));
        carnet->panel().setText(panelcontrol::search, u"monnier"_s);
        carnet->findInEpaves();
        QCOMPARE(carnet->selection(), Selection{2});
        carnet->panel().setText(panelcontrol::search, u"morlo"_s);
        carnet->findInBateaux();
        QCOMPARE(carnet->selection().size(), 4);
        carnet->panel().setText(panelcontrol::search, u"nobody"_s);
        carnet->findInPartenaires();
        QCOMPARE(carnet->selection(), Selection{});
    }

    void searchingTheComputersEndsInTheUnknownKey() {
        TestDesk desk;
        auto carnet = desk.newLogbook();
        fillLogbook(*carnet, dives());
        carnet->select({1});
        QVERIFY_THROWS_EXCEPTION(UnknownKeyError, carnet->findInOrdinateurs());
        // The selection is cleared before the first dive is looked at.
        QCOMPARE(carnet->selection(), Selection{});
    }

    void anEmptyLogbookHasNoDiveToFailOn() {
        TestDesk desk;
        desk.strings.setLanguage(Strings::Language::Keys);
        auto carnet = desk.newLogbook();
        carnet->findInOrdinateurs();
        QCOMPARE(carnet->panel().text(panelcontrol::found), u"Found dives|0"_s);
    }

    void signsOfPatternsAreText() {
        search(u"z.*"_s, &Carnet::findInPartenaires);
        QCOMPARE(carnet().selection(), Selection());
        search(u", 3 rays."_s, &Carnet::findInNotes);
        QCOMPARE(carnet().selection(), Selection({0}));
    }

    void otherFieldsAreSearchedAsTheirText() {
        carnet().panel().setText(panelcontrol::search, u"2"_s);
        carnet().findTextWithField(u"noPlongee"_s);
        QCOMPARE(carnet().selection(), Selection({1}));
    }

    void theFirstMatchIsInTheForm() {
        search(u"zoé"_s, &Carnet::findInPartenaires);
        QCOMPARE(_book->text(u"bateau"_s), u"Kraken"_s);
    }

    void whatWasTypedIsStoredBeforeTheSearch() {
        carnet().setFormOpen(true);
        _book->fill(u"notes"_s, u"a shark"_s);
        search(u"shark"_s, &Carnet::findInNotes);
        QCOMPARE(carnet().selection(), Selection({0}));
        QCOMPARE(carnet().record(0).notes(), u"a shark"_s);
    }

    void theCountIsToldInWords() {
        _book->desk.strings.setLanguage(Strings::Language::English);
        search(u"turtle"_s, &Carnet::findInNotes);
        QCOMPARE(found(), u"2 dives found"_s);
        _book->desk.strings.setLanguage(Strings::Language::French);
        search(u"turtle"_s, &Carnet::findInNotes);
        QCOMPARE(found(), u"2 plongées trouvées"_s);
    }
};

int runCarnetSearchTest(int argc, char** argv) {
    CarnetSearchTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CarnetSearchTest.moc"
