#include "logbook/LogbookTests.h"
#include "platform/record/Field.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QStringList designed{u"noPlongee"_s,  u"date"_s,   u"lieu"_s,        u"site"_s, u"heure"_s,
                           u"profondeur"_s, u"temps"_s,  u"tempEau"_s,     u"deco"_s, u"coeff"_s,
                           u"visibilite"_s, u"epaves"_s, u"inoubliable"_s, u"gaz"_s,  u"rebreather"_s};

QStringList without(const QStringList& hidden) {
    QStringList left = designed;
    for (const QString& column : hidden) left.removeAll(column);
    return left;
}

struct Logbook {
    TestDesk desk;
    std::unique_ptr<Carnet> carnet = desk.newLogbook();

    DiveTableSource& table() const { return carnet->diveTable(); }
    QList<int> numbers() const {
        QList<int> list;
        for (const auto& dive : carnet->records()) list << dive->noPlongee();
        return list;
    }
    QList<int> sorted(const QStringList& clicks) const {
        for (const QString& column : clicks) table().didClickTableColumn(column);
        return numbers();
    }
};

/// Dives 1, 2, 3 … with one more value each.
template <class Value, class Set>
QList<Plongee> divesWith(const QList<Value>& values, Set set) {
    QList<Plongee> dives;
    for (const Value& value : values) {
        Plongee dive = diveNumbered(int(dives.size()) + 1);
        (dive.*set)(value);
        dives << dive;
    }
    return dives;
}

}  // namespace

class DiveTableSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatWasNeverStoredStandsAsDesigned() {
        const Logbook logbook;
        QCOMPARE(logbook.table().shownColumns(), without({u"epaves"_s, u"gaz"_s, u"rebreather"_s}));
    }

    void aColumnIsShownAsItsSettingSays_data() {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("key");
        const char* keys[] = {
            "column numero",     "column date",  "column lieu",        "column site", "column heure",
            "column profondeur", "column temps", "column temp eau",    "column deco", "column coeff",
            "column visibilite", "column_epave", "column inoubliable", "column gaz",  "column scaph"};
        for (int i = 0; i < 15; ++i) QTest::newRow(keys[i]) << designed[i] << QString::fromLatin1(keys[i]);
    }
    void aColumnIsShownAsItsSettingSays() {
        QFETCH(QString, column);
        QFETCH(QString, key);
        const Logbook logbook;
        logbook.carnet->desk().defaults.store(key, 0);
        logbook.carnet->desk().notifications.post(u"updateColumnsTableView"_s, nullptr);
        QVERIFY(!logbook.table().shownColumns().contains(column));
        logbook.carnet->desk().defaults.store(key, 1);
        logbook.carnet->desk().notifications.post(u"updateColumnsTableView"_s, nullptr);
        QVERIFY(logbook.table().shownColumns().contains(column));
    }

    void theWreckKeyWithASpaceMeansNothing() {
        const Logbook logbook;
        logbook.carnet->desk().defaults.store(u"column epave"_s, 1);
        logbook.table().displayColumnsInTableView();
        QVERIFY(!logbook.table().shownColumns().contains(u"epaves"_s));
    }

    void aHiddenColumnComesBackAtItsDesignedPlace() {
        const Logbook logbook;
        const QStringList before = logbook.table().shownColumns();
        logbook.table().setColumn(u"date"_s, false);
        QCOMPARE(logbook.table().shownColumns(),
                 without({u"date"_s, u"epaves"_s, u"gaz"_s, u"rebreather"_s}));
        logbook.table().setColumn(u"date"_s, true);
        QCOMPARE(logbook.table().shownColumns(), before);
        QCOMPARE(logbook.table().shownColumns().indexOf(u"date"_s), 1);
    }

    void aColumnComesBackAtTheEndWhenFewerAreShown() {
        const Logbook logbook;
        for (const QString& column : designed) logbook.table().setColumn(column, false);
        QVERIFY(logbook.table().shownColumns().isEmpty());
        logbook.table().setColumn(u"noPlongee"_s, true);
        logbook.table().setColumn(u"deco"_s, true);
        QCOMPARE(logbook.table().shownColumns(), (QStringList{u"noPlongee"_s, u"deco"_s}));
        // Its place is 1, and two columns stand already: between them.
        logbook.table().setColumn(u"date"_s, true);
        QCOMPARE(logbook.table().shownColumns(), (QStringList{u"noPlongee"_s, u"date"_s, u"deco"_s}));
        // Its place is 4, and only three stand: at the end.
        logbook.table().setColumn(u"heure"_s, true);
        QCOMPARE(logbook.table().shownColumns(),
                 (QStringList{u"noPlongee"_s, u"date"_s, u"deco"_s, u"heure"_s}));
    }

    void dateComesAtTheEndWhenNothingElseIsShown() {
        const Logbook logbook;
        for (const QString& column : designed) logbook.table().setColumn(column, false);
        logbook.table().setColumn(u"lieu"_s, true);
        logbook.table().setColumn(u"date"_s, true);
        QCOMPARE(logbook.table().shownColumns(), (QStringList{u"lieu"_s, u"date"_s}));
    }

    void showingTwiceHidingTwiceAndUnknownColumnsDoNothing() {
        const Logbook logbook;
        const QStringList before = logbook.table().shownColumns();
        logbook.table().setColumn(u"date"_s, true);
        logbook.table().setColumn(u"partenaires"_s, true);
        logbook.table().setColumn(u"partenaires"_s, false);
        QCOMPARE(logbook.table().shownColumns(), before);
        logbook.table().setColumn(u"date"_s, false);
        logbook.table().setColumn(u"date"_s, false);
        QCOMPARE(logbook.table().shownColumns().size(), before.size() - 1);
    }

    void theFirstClickDescendsAndFurtherOnesAlternate() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, divesWith(QList<int>{20, 40, 30}, &Plongee::setTemps));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{2, 3, 1}));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{1, 3, 2}));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{2, 3, 1}));
    }

    void everyColumnRemembersItsOwnDirection() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, divesWith(QList<int>{20, 40, 30}, &Plongee::setTemps));
        // Twice makes "temps" ascend; another column begins by descending; back, "temps" still ascends.
        QCOMPARE(logbook.sorted({u"temps"_s, u"temps"_s}), (QList<int>{1, 3, 2}));
        QCOMPARE(logbook.sorted({u"noPlongee"_s}), (QList<int>{3, 2, 1}));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{1, 3, 2}));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{2, 3, 1}));
    }

    void valuesCompareByTheirNature_data() {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QList<Plongee>>("dives");
        QTest::addColumn<QList<int>>("ascending");
        const float nan = std::numeric_limits<float>::quiet_NaN();
        const float inf = std::numeric_limits<float>::infinity();
        QTest::newRow("numbers by size, not by their text")
            << u"temps"_s << divesWith(QList<int>{9, 100, -3}, &Plongee::setTemps) << QList<int>{3, 1, 2};
        QTest::newRow("reals") << u"profondeur"_s
                               << divesWith(QList<float>{2.5F, -0.5F, inf, 2.25F}, &Plongee::setProfondeur)
                               << QList<int>{2, 4, 1, 3};
        QTest::newRow("what is no number comes first")
            << u"profondeur"_s << divesWith(QList<float>{1, nan, -inf}, &Plongee::setProfondeur)
            << QList<int>{2, 3, 1};
        QTest::newRow("both zeros are one")
            << u"profondeur"_s << divesWith(QList<float>{0.0F, -0.0F, 0.0F}, &Plongee::setProfondeur)
            << QList<int>{1, 2, 3};
        QTest::newRow("texts by their characters' codes")
            << u"lieu"_s
            << divesWith(QList<QString>{u"Écueil"_s, u"brest"_s, u"Brest"_s, u"Zone"_s}, &Plongee::setLieu)
            << QList<int>{3, 4, 2, 1};
        QTest::newRow("a text before what it begins")
            << u"lieu"_s
            << divesWith(QList<QString>{u"Brest Nord"_s, u"Brest"_s, u"Bre"_s}, &Plongee::setLieu)
            << QList<int>{3, 2, 1};
        QTest::newRow("alike for four characters")
            << u"site"_s << divesWith(QList<QString>{u"abcdz"_s, u"abcda"_s, u"abcd"_s}, &Plongee::setSite)
            << QList<int>{3, 2, 1};
        QTest::newRow("absent before empty before all others")
            << u"lieu"_s << divesWith(QList<QString>{u"A"_s, u""_s, QString()}, &Plongee::setLieu)
            << QList<int>{3, 2, 1};
        QTest::newRow("dates by time, absent ones first")
            << u"date"_s
            << divesWith(QList<Moment>{Moment::fromSeconds(5), Moment::fromSeconds(-7), Moment(),
                                       Moment::fromSeconds(5.5)},
                         &Plongee::setDate)
            << QList<int>{3, 2, 1, 4};
    }
    void valuesCompareByTheirNature() {
        QFETCH(QString, column);
        QFETCH(QList<Plongee>, dives);
        const Logbook logbook;
        fillLogbook(*logbook.carnet, dives);
        QTEST(logbook.sorted({column, column}), "ascending");
    }

    void equalValuesKeepTheirOrder() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, divesWith(QList<int>{1, 2, 1, 2, 1}, &Plongee::setTemps));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{2, 4, 1, 3, 5}));
        QCOMPARE(logbook.sorted({u"temps"_s}), (QList<int>{1, 3, 5, 2, 4}));
    }

    void everyColumnSorts() {
        for (const QString& column : designed) {
            const Logbook logbook;
            fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2)});
            logbook.table().clickTableColumn(column);
            QCOMPARE(logbook.table().sortedColumn(), column);
        }
    }

    void aColumnThatThereIsNotIsAnError() {
        const Logbook logbook;
        const auto click = [&] { logbook.table().clickTableColumn(u"partenaires"_s); };
        QCOMPARE(failureOf<UnknownKeyError>(click)->key(), u"partenaires"_s);
    }

    void sortingIsOneStepThatCanBeUndone() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2), diveNumbered(3)});
        QVERIFY(!logbook.carnet->isEdited());
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QVERIFY(logbook.carnet->isEdited());
        QCOMPARE(logbook.table().sortedColumn(), u"noPlongee"_s);
        logbook.carnet->undo();
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2, 3}));
        QVERIFY(!logbook.carnet->isEdited());
        // The mark in the header tells the truth: the list is not sorted now.
        QCOMPARE(logbook.table().sortedColumn(), QString());
        logbook.carnet->redo();
        QCOMPARE(logbook.table().sortedColumn(), u"noPlongee"_s);
    }

    void aListThatIsInOrderAlreadyIsNotEdited() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(3), diveNumbered(2), diveNumbered(1)});
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QVERIFY(!logbook.carnet->isEdited());
        QCOMPARE(logbook.table().sortedColumn(), u"noPlongee"_s);
        QVERIFY(!logbook.table().isSortAscending());
    }

    void theSameDivesStaySelected() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2), diveNumbered(3)});
        logbook.carnet->select({0, 1});
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QCOMPARE(logbook.carnet->selection(), (Selection{1, 2}));
        QCOMPARE(logbook.carnet->form().text(divecontrol::plongeeNo), u"2"_s);
    }

    void whatWasTypedIsStoredFirst() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1, u"A"_s), diveNumbered(2, u"B"_s)});
        logbook.carnet->select({0});
        logbook.carnet->setFormOpen(true);
        logbook.carnet->form().setText(ControlName{"lieuField"}, u"Z"_s);
        logbook.table().didClickTableColumn(u"lieu"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2}));
        QCOMPARE(logbook.carnet->record(0).lieu(), u"Z"_s);
    }

    void aLogbookToLookAtIsNotSorted() {
        const Logbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2)});
        logbook.carnet->setReadOnly(true);
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2}));
        QCOMPARE(logbook.table().sortedColumn(), QString());
    }

    void theTableCountsItsDives() {
        const Logbook logbook;
        QCOMPARE(logbook.table().tableCount(), u"0 dives"_s);
        fillLogbook(*logbook.carnet, {diveNumbered(1)});
        QCOMPARE(logbook.table().tableCount(), u"1 dive"_s);
        QCOMPARE(logbook.table().tableRows(), 1);
    }

    void aChangedSettingShowsInTheNextCell() {
        const Logbook logbook;
        Plongee dive = diveNumbered(1);
        dive.setProfondeur(12);
        fillLogbook(*logbook.carnet, {dive});
        UserDefaults& defaults = logbook.carnet->desk().defaults;
        const int column = int(logbook.table().shownColumns().indexOf(u"profondeur"_s));
        defaults.store(u"display units"_s, true);
        QCOMPARE(logbook.table().tableCell(0, column).text, u"12 m"_s);
        defaults.store(u"us units"_s, 1);
        QCOMPARE(logbook.table().tableCell(0, column).text, u"12 ft"_s);
        defaults.remove(u"us units"_s);
        QCOMPARE(logbook.table().tableCell(0, column).text, u"12 m"_s);
    }
};

int runDiveTableSourceTest(int argc, char** argv) {
    DiveTableSourceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveTableSourceTest.moc"
