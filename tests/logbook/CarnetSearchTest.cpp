#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

using Search = void (Carnet::*)();
Q_DECLARE_METATYPE(Search)

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
        _book->add({{u"bateau"_s, u"Kraken"_s}, {u"epaves"_s, u"Donator"_s}, {u"partenaires"_s, u"Zoé, Anaïs"_s}});
        _book->add({{u"notes"_s, u"Two TURTLES"_s}, {u"partenaires"_s, u"zoé"_s}, {u"ordinateur"_s, u"ordi"_s}});
        carnet().select({0});
    }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void selectsEveryDiveWhoseFieldHoldsTheText_data() {
        QTest::addColumn<Search>("action");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Selection>("rows");
        const auto row = [](const char* name, Search action, const QString& text, const Selection& rows) {
            QTest::newRow(name) << action << text << rows;
        };
        row("boat", &Carnet::findInBateaux, u"kraken"_s, {1});
        row("boat, middle of a word", &Carnet::findInBateaux, u"TOIL"_s, {0});
        row("boat, accent", &Carnet::findInBateaux, u"étoile"_s, {0});
        row("boat, without accent", &Carnet::findInBateaux, u"etoile"_s, {});
        row("wreck", &Carnet::findInEpaves, u"donator"_s, {1});
        row("notes", &Carnet::findInNotes, u"turtle"_s, {0, 2});
        row("notes, punctuation", &Carnet::findInNotes, u", 3 r"_s, {0});
        row("buddies", &Carnet::findInPartenaires, u"ZOÉ"_s, {1, 2});
        row("buddies, pattern signs are text", &Carnet::findInPartenaires, u"z.*"_s, {});
        row("nothing", &Carnet::findInNotes, u"shark"_s, {});
        row("empty text", &Carnet::findInNotes, u""_s, {0, 1, 2});
        row("blank", &Carnet::findInNotes, u" "_s, {0, 2});
    }
    void selectsEveryDiveWhoseFieldHoldsTheText() {
        QFETCH(Search, action);
        QFETCH(QString, text);
        QFETCH(Selection, rows);
        search(text, action);
        QCOMPARE(carnet().selection(), rows);
        QCOMPARE(found(), rows.size() == 1 ? u"One dive found"_s : u"Found dives|%1"_s.arg(rows.size()));
    }

    void aDiveWithoutAValueMatches() {
        Plongee absent;
        Plongee empty;
        empty.setNotes(u""_s);
        carnet().perform(u"Set"_s, {std::make_shared<const Plongee>(absent), std::make_shared<const Plongee>(empty)},
                         {});
        search(u"shark"_s, &Carnet::findInNotes);
        QCOMPARE(carnet().selection(), Selection({0}));
        QCOMPARE(found(), u"One dive found"_s);
    }

    void theComputersFieldIsUnknown() {
        const auto error = failureOf<UnknownKeyError>([&] { search(u"ordi"_s, &Carnet::findInOrdinateurs); });
        QVERIFY(error);
        QCOMPARE(error->key(), u"ordi"_s);
        QCOMPARE(carnet().selection(), Selection());
        QCOMPARE(found(), QString());
    }

    void anEmptyLogbookHasNoMatchInAnyField() {
        carnet().perform(u"Empty"_s, {}, {});
        for (const Search action : {&Carnet::findInBateaux, &Carnet::findInNotes, &Carnet::findInOrdinateurs}) {
            search(u"x"_s, action);
            QCOMPARE(found(), u"Found dives|0"_s);
        }
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
