#include "logbook/TableLogbook.h"
#include "platform/record/Field.h"
#include "support/Failure.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// The dives' numbers after clicks on these headers.
QList<int> sorted(const TableLogbook& logbook, const QStringList& clicks) {
    for (const QString& column : clicks) logbook.table().didClickTableColumn(column);
    return logbook.numbers();
}

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

class DiveTableSortTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstClickDescendsAndFurtherOnesAlternate() {
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, divesWith(QList<int>{20, 40, 30}, &Plongee::setTemps));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{2, 3, 1}));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{1, 3, 2}));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{2, 3, 1}));
    }

    void everyColumnRemembersItsOwnDirection() {
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, divesWith(QList<int>{20, 40, 30}, &Plongee::setTemps));
        // Twice makes "temps" ascend; another column begins by descending; back, "temps" still ascends.
        QCOMPARE(sorted(logbook, {u"temps"_s, u"temps"_s}), (QList<int>{1, 3, 2}));
        QCOMPARE(sorted(logbook, {u"noPlongee"_s}), (QList<int>{3, 2, 1}));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{1, 3, 2}));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{2, 3, 1}));
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
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, dives);
        QTEST(sorted(logbook, {column, column}), "ascending");
    }

    void equalValuesKeepTheirOrder() {
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, divesWith(QList<int>{1, 2, 1, 2, 1}, &Plongee::setTemps));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{2, 4, 1, 3, 5}));
        QCOMPARE(sorted(logbook, {u"temps"_s}), (QList<int>{1, 3, 5, 2, 4}));
    }

    void everyColumnSorts() {
        for (const QString& column : TableLogbook::columns()) {
            const TableLogbook logbook;
            fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2)});
            logbook.table().clickTableColumn(column);
            QCOMPARE(logbook.table().sortedColumn(), column);
        }
    }

    void aColumnThatThereIsNotIsAnError() {
        const TableLogbook logbook;
        const auto click = [&] { logbook.table().clickTableColumn(u"partenaires"_s); };
        QCOMPARE(failureOf<UnknownKeyError>(click)->key(), u"partenaires"_s);
    }

    void sortingIsOneStepThatCanBeUndone() {
        const TableLogbook logbook;
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
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(3), diveNumbered(2), diveNumbered(1)});
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QVERIFY(!logbook.carnet->isEdited());
        QCOMPARE(logbook.table().sortedColumn(), u"noPlongee"_s);
        QVERIFY(!logbook.table().isSortAscending());
    }

    void theSameDivesStaySelected() {
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2), diveNumbered(3)});
        logbook.carnet->select({0, 1});
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QCOMPARE(logbook.carnet->selection(), (Selection{1, 2}));
        QCOMPARE(logbook.carnet->form().text(divecontrol::plongeeNo), u"2"_s);
    }

    void whatWasTypedIsStoredFirst() {
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1, u"A"_s), diveNumbered(2, u"B"_s)});
        logbook.carnet->select({0});
        logbook.carnet->setFormOpen(true);
        logbook.carnet->form().setText(ControlName{"lieuField"}, u"Z"_s);
        logbook.table().didClickTableColumn(u"lieu"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2}));
        QCOMPARE(logbook.carnet->record(0).lieu(), u"Z"_s);
    }

    void aLogbookToLookAtIsNotSorted() {
        const TableLogbook logbook;
        fillLogbook(*logbook.carnet, {diveNumbered(1), diveNumbered(2)});
        logbook.carnet->setReadOnly(true);
        logbook.table().didClickTableColumn(u"noPlongee"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2}));
        QCOMPARE(logbook.table().sortedColumn(), QString());
    }
};

int runDiveTableSortTest(int argc, char** argv) {
    DiveTableSortTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveTableSortTest.moc"
