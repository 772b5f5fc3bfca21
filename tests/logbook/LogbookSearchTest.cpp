#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// Searching the logbook: what is selected and what is said.
class LogbookSearchTest : public QObject {
    Q_OBJECT

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
};

int runLogbookSearchTest(int argc, char** argv) {
    LogbookSearchTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "LogbookSearchTest.moc"
