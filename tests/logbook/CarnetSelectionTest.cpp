#include <QSignalSpy>
#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

class CarnetSelectionTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    Carnet& carnet() { return *_book->carnet; }

private Q_SLOTS:
    void init() {
        _book = std::make_unique<Logbook>();
        for (const auto& place : {u"a"_s, u"b"_s, u"c"_s}) _book->add({{u"lieuField"_s, place}});
        carnet().select({});
    }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void selectingLoadsTheFirstSelectedDive() {
        carnet().select({2, 1});
        QCOMPARE(carnet().currentIndex(), 1);
        QCOMPARE(_book->text(u"lieuField"_s), u"b"_s);
        carnet().select({});
        QCOMPARE(carnet().currentIndex(), -1);
        QCOMPARE(_book->text(u"lieuField"_s), u"b"_s);  // nothing else to show
    }

    void selectingAgainGivesUpWhatWasTyped() {
        carnet().select({1});
        _book->fill(u"lieuField"_s, u"typed"_s);
        carnet().select({1});
        QCOMPARE(_book->text(u"lieuField"_s), u"b"_s);
        QCOMPARE(_book->places()[1], u"b"_s);
    }

    void withTheFormOpenAPersonsSelectionStoresWhatWasTyped() {
        carnet().setFormOpen(true);
        carnet().select({1});
        _book->fill(u"lieuField"_s, u"typed"_s);
        carnet().changementSelection({0});
        QCOMPARE(_book->places(), QStringList({u"a"_s, u"typed"_s, u"c"_s}));
        QCOMPARE(_book->text(u"lieuField"_s), u"a"_s);
        QCOMPARE(carnet().selection(), Selection({0}));
    }

    void withTheFormClosedASelectionStoresNothing() {
        carnet().select({1});
        _book->fill(u"lieuField"_s, u"typed"_s);
        carnet().changementSelection({0});
        QCOMPARE(_book->places()[1], u"b"_s);
    }

    void previousAndNextMoveByOneRow_data() {
        QTest::addColumn<Selection>("from");
        QTest::addColumn<bool>("forward");
        QTest::addColumn<Selection>("to");
        QTest::newRow("next") << Selection{0} << true << Selection{1};
        QTest::newRow("previous") << Selection{2} << false << Selection{1};
        QTest::newRow("next of several") << Selection{0, 2} << true << Selection{1};
        QTest::newRow("previous of several") << Selection{1, 2} << false << Selection{0};
        QTest::newRow("before the first") << Selection{0} << false << Selection{0};
        QTest::newRow("behind the last") << Selection{2} << true << Selection{2};
        QTest::newRow("next without selection") << Selection{} << true << Selection{};
        QTest::newRow("previous without selection") << Selection{} << false << Selection{};
    }
    void previousAndNextMoveByOneRow() {
        QFETCH(Selection, from);
        QFETCH(bool, forward);
        QFETCH(Selection, to);
        carnet().select(from);
        forward ? carnet().nextDive() : carnet().prevDive();
        QCOMPARE(carnet().selection(), to);
        QCOMPARE(carnet().currentIndex(), to.isEmpty() ? -1 : to.first());
        if (!to.isEmpty()) QCOMPARE(_book->text(u"lieuField"_s), _book->places()[to.first()]);
    }

    void movingStoresTheFormFirst() {
        carnet().select({1});
        _book->fill(u"lieuField"_s, u"typed"_s);
        carnet().nextDive();
        QCOMPARE(_book->places(), QStringList({u"a"_s, u"typed"_s, u"c"_s}));
        QCOMPARE(_book->text(u"lieuField"_s), u"c"_s);
        _book->fill(u"lieuField"_s, u"last"_s);
        carnet().nextDive();  // there is none, but what was typed is stored
        QCOMPARE(_book->places(), QStringList({u"a"_s, u"typed"_s, u"last"_s}));
        QCOMPARE(_book->text(u"lieuField"_s), u"last"_s);
    }

    void movingWithoutChangesIsNoEdit() {
        const auto before = carnet().records();
        carnet().select({0});
        carnet().nextDive();
        carnet().nextDive();
        carnet().prevDive();
        QVERIFY(carnet().records() == before);
        QCOMPARE(carnet().undoName(), u"Add dive"_s);
    }

    void selectLastDiveShowsTheRow_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<Selection>("selection");
        QTest::addColumn<int>("scrolls");
        QTest::newRow("selected") << 2 << true << Selection{2} << 1;
        QTest::newRow("only shown") << 2 << false << Selection{} << 1;
        QTest::newRow("first") << 0 << true << Selection{0} << 1;
        QTest::newRow("none") << -1 << true << Selection{0, 1} << 0;
        QTest::newRow("beyond") << 3 << false << Selection{0, 1} << 0;
    }
    void selectLastDiveShowsTheRow() {
        QFETCH(int, index);
        QFETCH(bool, selected);
        carnet().select({0, 1});
        QSignalSpy scrolled(&carnet(), &Carnet::scrollWanted);
        carnet().selectLastDive(index, selected);
        QTEST(carnet().selection(), "selection");
        QTEST(int(scrolled.size()), "scrolls");
        if (!scrolled.isEmpty()) QCOMPARE(scrolled[0][0].toInt(), index);
    }

    void undoLoadsTheSelectedDiveAgain() {
        carnet().select({1});
        _book->fill(u"lieuField"_s, u"B"_s);
        carnet().updateDive();
        carnet().undo();
        QCOMPARE(carnet().selection(), Selection({1}));
        QCOMPARE(_book->text(u"lieuField"_s), u"b"_s);
    }
};

int runCarnetSelectionTest(int argc, char** argv) {
    CarnetSelectionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CarnetSelectionTest.moc"
