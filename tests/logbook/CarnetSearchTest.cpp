#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

using Search = void (Carnet::*)();
/// Searching beyond the plain match: what surrounds it.
class CarnetSearchTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    Carnet& carnet() { return *_book->carnet; }
    QString found() { return carnet().panel().text(panelcontrol::found); }
    void search(const QString& text, Search action) {
        carnet().panel().setText(panelcontrol::search, text);
        (carnet().*action)();
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
