#include "LogbookUiTests.h"
#include "logbook/DiveColumns.h"
#include "platform/record/Field.h"
#include "platform/ui/SourceTableView.h"
#include "profile/ui/GraphProfileWindow.h"
#include "profile/ui/ProfilView.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class LogbookTableTest : public QObject {
    Q_OBJECT

    static QStringList row(const LogbookOnScreen& logbook, int at) {
        QStringList cells;
        const auto* model = logbook.window->table().model();
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(at, column).data().toString();
        return cells;
    }

    static QStringList shownNumbers(const LogbookOnScreen& logbook) {
        QStringList numbers;
        for (int at = 0; at < logbook.window->table().model()->rowCount(); ++at)
            numbers << row(logbook, at).first();
        return numbers;
    }

    static void clickHeader(const LogbookOnScreen& logbook, const QString& column) {
        const SourceTableView& table = logbook.window->table();
        QHeaderView* header = table.horizontalHeader();
        const int section = table.list().columnNamed(column);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(section) + 10, 8));
    }

    /// "lieu up": the column with the mark in its header.
    static QString sortMark(const LogbookOnScreen& logbook) {
        const SourceTableView& table = logbook.window->table();
        const int section = table.horizontalHeader()->sortIndicatorSection();
        if (section < 0) return u"none"_s;
        const bool isUp = table.horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder;
        return table.list().columns()[section].identifier + (isUp ? u" up"_s : u" down"_s);
    }

private Q_SLOTS:
    void everyColumnIsNamedAfterTheFieldItShows() {
        for (const DiveColumn& column : diveColumns())
            QVERIFY(fieldIndex<Plongee>(PlongeeFields::all, QString::fromLatin1(column.identifier)) >= 0);
    }

    void aDiveIsShownInWords() {
        LogbookOnScreen logbook;
        logbook.carnet->addDive([&] {
            Form& form = logbook.carnet->form();
            const QList<std::pair<QString, QString>> values{
                {u"dateField"_s, u"2016-02-03"_s}, {u"heureField"_s, u"09:15"_s},
                {u"lieuField"_s, u"Brest"_s},      {u"siteField"_s, u"Le Vioben"_s},
                {u"tempsField"_s, u"41"_s},        {u"profondeurField"_s, u"23,5"_s},
                {u"tempEauField"_s, u"13"_s},      {u"decoPopUp"_s, u"2"_s},
                {u"visibilitePopUp"_s, u"2"_s},    {u"epavesField"_s, u"La Swansea"_s},
                {u"partenairesField"_s, u"Luc"_s}};
            for (const auto& [name, value] : values) form.fill(form.find(name), value);
        });
        QCOMPARE(row(logbook, 0),
                 (QStringList{u"1"_s, u"03/02/2016"_s, u"Brest"_s, u"Le Vioben"_s, u"09:15"_s, u"23.5 m"_s,
                              u"41 '"_s, u"13 °C"_s, u"Computer"_s, u"N/A"_s, u"Good"_s, u""_s}));
    }

    void aTemperatureThatWasNotRecordedIsADash() {
        LogbookOnScreen logbook;
        logbook.carnet->addDive(
            [&] { logbook.carnet->form().setText(ControlName{"tempEauField"}, u"-50"_s); });
        QCOMPARE(row(logbook, 0).at(7), u"-"_s);
    }

    void theSelectionIsTheSameInTableAndDocument() {
        LogbookOnScreen logbook(5);
        logbook.clickRow(1);
        QCOMPARE(logbook.carnet->selection(), Selection{1});
        logbook.clickRow(3, Qt::ControlModifier);
        QCOMPARE(logbook.carnet->selection(), (Selection{1, 3}));
        logbook.carnet->select({0, 1, 4});
        QCOMPARE(logbook.shownSelection(), (Selection{0, 1, 4}));
        logbook.action("selectAll")->trigger();
        QCOMPARE(logbook.carnet->selection().size(), 5);
        logbook.carnet->select({});
        QVERIFY(logbook.shownSelection().isEmpty());
    }

    void homeAndEndGoToTheFirstAndTheLastDive() {
        LogbookOnScreen logbook(4);
        SourceTableView& table = logbook.window->table();
        QTest::keyClick(&table, Qt::Key_Home);
        QCOMPARE(logbook.carnet->selection(), Selection{0});
        QTest::keyClick(&table, Qt::Key_End);
        QCOMPARE(logbook.carnet->selection(), Selection{3});
        QTest::keyClick(&table, Qt::Key_Home);
        QCOMPARE(logbook.carnet->selection(), Selection{0});
        QTest::keyClick(&table, Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(logbook.carnet->selection(), (Selection{0, 1, 2, 3}));
        LogbookOnScreen empty;
        QTest::keyClick(&empty.window->table(), Qt::Key_End);
        QCOMPARE(empty.carnet->selection(), Selection{});
    }

    void aDoubleClickOpensTheDive() {
        LogbookOnScreen logbook(3);
        logbook.clickRow(1);
        const QRect cell = logbook.window->table().visualRect(logbook.window->table().model()->index(1, 3));
        QTest::mouseDClick(logbook.window->table().viewport(), Qt::LeftButton, {}, cell.center());
        QVERIFY(logbook.edit() && logbook.edit()->isVisible());
        QCOMPARE(logbook.field<QLineEdit>("plongeeNoField")->text(), u"2"_s);
    }

    void theTableFollowsTheListWithoutLosingItsPlace_data() {
        QTest::addColumn<QList<int>>("kept");
        QTest::newRow("first gone") << QList<int>{1, 2, 3, 4, 5};
        QTest::newRow("last gone") << QList<int>{0, 1, 2, 3, 4};
        QTest::newRow("middle gone") << QList<int>{0, 1, 4, 5};
        QTest::newRow("scattered") << QList<int>{1, 3, 5};
        QTest::newRow("turned round") << QList<int>{5, 4, 3, 2, 1, 0};
        QTest::newRow("two exchanged") << QList<int>{0, 2, 1, 3, 4, 5};
        QTest::newRow("doubled") << QList<int>{0, 1, 1, 2, 3, 3, 3, 4, 5};
        QTest::newRow("all gone") << QList<int>{};
        QTest::newRow("the same") << QList<int>{0, 1, 2, 3, 4, 5};
    }
    void theTableFollowsTheListWithoutLosingItsPlace() {
        QFETCH(QList<int>, kept);
        LogbookOnScreen logbook(6);
        QAbstractItemModelTester tester(logbook.window->table().model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
        Records<Plongee> list;
        for (const int at : kept) list.append(logbook.carnet->records()[at]);
        const auto shownNumbers = [&] {
            QList<int> numbers;
            for (int i = 0; i < logbook.window->table().model()->rowCount(); ++i)
                numbers << row(logbook, i).first().toInt();
            return numbers;
        };
        logbook.carnet->perform(u"test"_s, list, {});
        QCOMPARE(shownNumbers(), logbook.numbers());
        logbook.carnet->undo();
        QCOMPARE(shownNumbers(), (QList<int>{1, 2, 3, 4, 5, 6}));
    }

    void clicksOnAHeaderSort() {
        LogbookOnScreen logbook(3);
        clickHeader(logbook, u"profondeur"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{3, 2, 1}));
        QCOMPARE(shownNumbers(logbook), (QStringList{u"3"_s, u"2"_s, u"1"_s}));
        QCOMPARE(sortMark(logbook), u"profondeur down"_s);
        clickHeader(logbook, u"profondeur"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2, 3}));
        QCOMPARE(sortMark(logbook), u"profondeur up"_s);
        clickHeader(logbook, u"lieu"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{3, 2, 1}));
        QCOMPARE(sortMark(logbook), u"lieu down"_s);
        clickHeader(logbook, u"profondeur"_s);
        QCOMPARE(logbook.numbers(), (QList<int>{1, 2, 3}));
        QVERIFY(logbook.shownSelection().isEmpty());
    }

    void undoTakesTheSortingBackAndTheMarkWithIt() {
        LogbookOnScreen logbook(3);
        QCOMPARE(sortMark(logbook), u"none"_s);
        clickHeader(logbook, u"noPlongee"_s);
        QCOMPARE(sortMark(logbook), u"noPlongee down"_s);
        logbook.carnet->undo();
        QCOMPARE(shownNumbers(logbook), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
        QCOMPARE(sortMark(logbook), u"none"_s);
    }

    void theSelectedDiveStaysSelectedWhenTheListIsSorted() {
        LogbookOnScreen logbook(4);
        logbook.clickRow(0);
        clickHeader(logbook, u"noPlongee"_s);
        QCOMPARE(logbook.shownSelection(), Selection{3});
        QCOMPARE(logbook.carnet->form().text(divecontrol::plongeeNo), u"1"_s);
    }

    void columnsFollowTheSettings() {
        LogbookOnScreen logbook(2);
        logbook.clickRow(1);
        logbook.desk.defaults.store(u"column gaz"_s, 1);
        logbook.desk.defaults.store(u"column date"_s, 0);
        logbook.desk.notifications.post(u"updateColumnsTableView"_s, nullptr);
        QStringList wanted = logbook.carnet->diveTable().shownColumns();
        QCOMPARE(logbook.window->table().columnOrder(), wanted);
        QVERIFY(wanted.contains(u"gaz"_s) && !wanted.contains(u"date"_s));
        QCOMPARE(logbook.shownSelection(), Selection{1});
        logbook.desk.defaults.store(u"column date"_s, 1);
        logbook.desk.notifications.post(u"updateColumnsTableView"_s, nullptr);
        QCOMPARE(logbook.window->table().columnOrder().indexOf(u"date"_s), 1);
    }

    void cellsFollowTheSettings() {
        LogbookOnScreen logbook(1);
        const QModelIndex cell = logbook.window->table().model()->index(0, 5);
        QCOMPARE(cell.data().toString(), u"11 m"_s);
        logbook.desk.defaults.store(u"us units"_s, 1);
        logbook.desk.notifications.post(u"updateTableView"_s, nullptr);
        QCOMPARE(cell.data().toString(), u"11 ft"_s);
        QCOMPARE(cell.data(Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 255));
    }

    void theOrderOfColumnsIsRemembered() {
        LogbookOnScreen logbook(1);
        logbook.window->table().horizontalHeader()->moveSection(5, 0);
        const QStringList order = logbook.window->table().columnOrder();
        QCOMPARE(order.first(), u"profondeur"_s);
        logbook.window->rememberPlace();
        LogbookWindow again(*logbook.carnet);
        QCOMPARE(again.table().columnOrder(), order);
        QCOMPARE(again.table().columnWidth(5), logbook.window->table().columnWidth(5));
    }

    void rowsAreCopiedAsTheyAreSeen() {
        LogbookOnScreen logbook(2);
        for (const QString& column : {u"date"_s, u"site"_s, u"heure"_s, u"temps"_s, u"tempEau"_s, u"deco"_s,
                                      u"coeff"_s, u"visibilite"_s, u"inoubliable"_s})
            logbook.carnet->diveTable().setColumn(column, false);
        logbook.window->table().reloadColumns();
        logbook.window->table().horizontalHeader()->moveSection(2, 0);
        logbook.carnet->select({0, 1});
        QCOMPARE(logbook.window->copiedText(), u"11 m\t1\tPlace 1\n12 m\t2\tPlace 2"_s);
    }

    void theWindowShowsTheProfileOfTheSelectedDive() {
        LogbookOnScreen logbook(2);
        QVERIFY(!logbook.action("profil")->isEnabled());
        logbook.clickRow(0);
        logbook.pressHere("profil");
        GraphProfileWindow* graph = logbook.window->profileGraphIfMade();
        QVERIFY(graph && graph->isVisible());
        QCOMPARE(graph->windowTitle(), u"Dive 1 – Untitled"_s);
        QCOMPARE(graph->view().profil().profilData.size(), 1);
        logbook.action("nextDive")->trigger();
        QTRY_COMPARE(graph->windowTitle(), u"Dive 2 – Untitled"_s);
        // What is typed into the form shows at once.
        logbook.carnet->form().setText(divecontrol::o2Mix, u"32"_s);
        QTRY_COMPARE(graph->view().profil().fracO2, 32.0F);
        logbook.desk.defaults.store(u"ppO2 line"_s, 1);
        logbook.desk.notifications.post(u"profile"_s, nullptr);
        QTRY_VERIFY(graph->view().profil().style.ppO2Line);
    }

    void theEditWindowOpensTheProfileToo() {
        LogbookOnScreen logbook(1);
        logbook.clickRow(0);
        logbook.openEdit();
        logbook.pressInEdit("profil");
        QVERIFY(logbook.window->profileGraphIfMade()->isVisible());
    }

    void columnWidthsAreRemembered() {
        LogbookOnScreen logbook(1);
        logbook.window->table().setColumnWidth(3, 333);
        logbook.window->rememberPlace();
        LogbookWindow again(*logbook.carnet);
        QCOMPARE(again.table().columnWidth(3), 333);
    }

    void theStatusLineCounts() {
        LogbookOnScreen logbook(1);
        const auto* status = logbook.window->statusBar()->findChild<QLabel*>();
        QCOMPARE(status->text(), u"1 dive"_s);
        logbook.addQuietly(2);
        QCOMPARE(status->text(), u"2 dives · 1 selected"_s);
    }

    void aHundredThousandDivesStayFluent() {
        LogbookOnScreen logbook(1);
        Records<Plongee> many;
        many.fill(logbook.carnet->records().first(), 100'000);
        logbook.carnet->perform(u"test"_s, many, {});
        QElapsedTimer timer;
        timer.start();
        for (const int at : {99'999, 0, 50'000, 25'000, 75'000}) {
            logbook.carnet->select({at});
            QTest::qWait(0);
            logbook.window->table().viewport()->repaint();
        }
        const qint64 five = timer.elapsed();
        QVERIFY2(five < 1500, qPrintable(u"five jumps took %1 ms"_s.arg(five)));
    }
};

int runLogbookTableTest(int argc, char** argv) {
    LogbookTableTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LogbookTableTest.moc"
