#include "registers/ui/RegisterUiTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class RegisterWindowTest : public QObject {
    Q_OBJECT

private:
    static QStringList names(const RegisterBench& bench) { return bench.column(u"nom"_s); }

    /// The label with these words, whatever key it got.
    static QLabel* labelled(const RegisterOnScreen& screen, const QString& words) {
        for (QLabel* label : screen.edit()->findChildren<QLabel*>())
            if (QString(label->text()).remove(u'&') == words) return label;
        qFatal("no label %s", qPrintable(words));
    }

private Q_SLOTS:
    void theAddButtonAddsARecordAndOpensTheForm() {
        RegisterOnScreen wrecks("Epaves");
        wrecks.press(wrecks.tool(wrecks.window.get(), "wreckTableViewWindowToolbar", "addWreck"));
        QCOMPARE(wrecks.shown->rowCount(), 1);
        QVERIFY(QTest::qWaitForWindowActive(wrecks.edit()));
        formwalk::typeInto(wrecks.field(u"nomField"_s), u"Elster"_s);
        QCOMPARE(wrecks.text(u"nomField"_s), u"Elster"_s);
        wrecks.edit()->close();
        QCOMPARE(names(wrecks), QStringList{u"Elster"_s});
        QCOMPARE(wrecks.window->findChild<QLabel*>(u"countField"_s)->text(), u"1 wreck · 1 selected"_s);
    }

    void theToolbarOfTheFormAddsAnotherRecord() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s});
        wrecks.shown->selectRows({0});
        wrecks.openEdit();
        formwalk::typeInto(wrecks.field(u"nomField"_s), u"b"_s);
        wrecks.press(wrecks.tool(wrecks.edit(), "wreckEditWindowToolbar", "addWreck"));
        QCOMPARE(names(wrecks), QStringList({u"b"_s, u""_s}));
        QCOMPARE(wrecks.shown->selectedRows(), Selection{1});
    }

    void deleteAsksAndRemovesAllSelectedRows() {
        RegisterOnScreen items("Materiel", {u"a"_s, u"b"_s, u"c"_s});
        items.clickRow(0);
        items.clickRow(2, Qt::ControlModifier);
        items.desk.prompt.expectBeep();
        items.desk.prompt.expectQuestion(u"Delete the selected cards?"_s, 0);
        items.press(items.tool(items.window.get(), "equipTableViewWindowToolbar", "deleteMatos"));
        QCOMPARE(items.desk.prompt.finish(), QStringList());
        QCOMPARE(items.column(u"matosNo"_s), QStringList{u"b"_s});
    }

    void theDeleteKeyWorksInTheTable() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s, u"b"_s});
        wrecks.clickRow(1);
        wrecks.desk.prompt.expectBeep();
        wrecks.desk.prompt.expectQuestion(u"Delete the selected cards?"_s, 0);
        QTest::keyClick(&wrecks.window->table(), Qt::Key_Delete);
        QCOMPARE(wrecks.desk.prompt.finish(), QStringList());
        QCOMPARE(names(wrecks), QStringList{u"a"_s});
    }

    void aDoubleClickOpensTheFormOnTheRow() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s, u"b"_s});
        wrecks.clickRow(0);
        const QRect cell = wrecks.window->table().visualRect(wrecks.window->table().model()->index(0, 1));
        QTest::mouseDClick(wrecks.window->table().viewport(), Qt::LeftButton, {}, cell.center());
        QVERIFY(wrecks.edit() && wrecks.edit()->isVisible());
        QVERIFY(wrecks.edit()->windowTitle().startsWith(u"a – "_s));
    }

    void aHeaderSortsDescendingThenAscending() {
        RegisterOnScreen wrecks("Epaves", {u"b"_s, u"c"_s, u"a"_s});
        wrecks.clickHeader(0);
        QCOMPARE(names(wrecks), QStringList({u"c"_s, u"b"_s, u"a"_s}));
        QCOMPARE(wrecks.window->table().horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
        wrecks.clickHeader(0);
        QCOMPARE(names(wrecks), QStringList({u"a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(wrecks.window->table().horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    void anotherRowStoresWhatWasTyped() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s, u"b"_s});
        wrecks.clickRow(0);
        wrecks.openEdit();
        formwalk::typeInto(wrecks.field(u"nomField"_s), u"typed"_s);
        wrecks.clickRow(1);
        QCOMPARE(names(wrecks), QStringList({u"typed"_s, u"b"_s}));
        QCOMPARE(wrecks.field<QLineEdit>(u"nomField"_s)->text(), u"b"_s);
    }

    void previousAndNextStopAtTheEnds() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s, u"b"_s});
        wrecks.clickRow(0);
        wrecks.openEdit();
        QAbstractButton* previous = wrecks.tool(wrecks.edit(), "wreckEditWindowToolbar", "prevWreck");
        QAbstractButton* next = wrecks.tool(wrecks.edit(), "wreckEditWindowToolbar", "nextWreck");
        QVERIFY(!previous->isEnabled() && next->isEnabled());
        wrecks.press(next);
        QCOMPARE(wrecks.shown->selectedRows(), Selection{1});
        QVERIFY(previous->isEnabled() && !next->isEnabled());
        wrecks.press(previous);
        QCOMPARE(wrecks.shown->selectedRows(), Selection{0});
    }

    void undoTakesBackAnEditThroughTheForm() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s});
        wrecks.clickRow(0);
        wrecks.openEdit();
        formwalk::typeInto(wrecks.field(u"nomField"_s), u"b"_s);
        wrecks.edit()->close();
        QVERIFY(wrecks.window->isWindowModified());
        wrecks.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(wrecks.window.get()));
        QTest::keyClick(wrecks.window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(names(wrecks), QStringList{u"a"_s});
    }

    void everyPageHasItsButtonKeyAndSize_data() {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("action");
        QTest::addColumn<int>("pages");
        QTest::newRow("wrecks") << u"Epaves"_s << u"goWreckView_"_s << 5;
        QTest::newRow("equipment") << u"Materiel"_s << u"goEquipView_"_s << 3;
    }
    void everyPageHasItsButtonKeyAndSize() {
        QFETCH(QString, type);
        QFETCH(QString, action);
        QFETCH(int, pages);
        RegisterOnScreen screen(type.toLatin1().constData(), {u"a"_s});
        screen.shown->selectRows({0});
        screen.openEdit();
        QCOMPARE(screen.edit()->view().paneCount(), pages);
        for (int page = pages; page >= 1; --page) {
            screen.edit()->findChild<QAction*>(action + QString::number(page))->trigger();
            QCOMPARE(screen.edit()->pageShown(), page - 1);
            QTest::qWait(0);  // for the page's first size
            screen.edit()->resize(700 + 10 * page, 420 + 10 * page);
        }
        for (int page = 1; page <= pages; ++page) {
            QTest::keyClick(screen.edit(), Qt::Key(Qt::Key_0 + page), Qt::ControlModifier);
            QCOMPARE(screen.edit()->pageShown(), page - 1);
            QTRY_COMPARE(screen.edit()->size(), QSize(700 + 10 * page, 420 + 10 * page));
        }
        screen.edit()->close();
        // The sizes are there again in the next window.
        RegisterEditWindow again(*screen.shown, {}, {});
        again.goPage(pages - 1);
        again.show();
        QTRY_COMPARE(again.size(), QSize(700 + 10 * pages, 420 + 10 * pages));
    }

    void everyControlOfTheFormHasItsWidget_data() {
        QTest::addColumn<QString>("type");
        QTest::newRow("wrecks") << u"Epaves"_s;
        QTest::newRow("equipment") << u"Materiel"_s;
    }
    void everyControlOfTheFormHasItsWidget() {
        QFETCH(QString, type);
        RegisterOnScreen screen(type.toLatin1().constData(), {u"a"_s});
        screen.shown->selectRows({0});
        screen.openEdit();
        for (int i = 0; i < screen.form().count(); ++i) {
            const QString name = QLatin1String(screen.form().spec(i).name);
            if (name != u"countField"_s) QVERIFY2(screen.field(name), qPrintable(name));
        }
    }

    void theSwitchHidesAndShowsWhatBelongsToIt() {
        RegisterOnScreen items("Materiel", {u"a"_s});
        items.shown->selectRows({0});
        items.openEdit();
        items.edit()->goPage(1);
        QVERIFY(!items.field(u"lastRevisionField"_s)->isVisible());
        QVERIFY(!labelled(items, u"Last"_s)->isVisible());
        QTest::mouseClick(items.field<QCheckBox>(u"noInspectionSwitch"_s), Qt::LeftButton);
        QVERIFY(items.field(u"lastRevisionField"_s)->isVisible());
        QVERIFY(labelled(items, u"Last"_s)->isVisible());
        QVERIFY(!items.field(u"capaciteBlocField"_s)->isVisible());
        QTest::mouseClick(items.field<QCheckBox>(u"blocSwitch"_s), Qt::LeftButton);
        QVERIFY(items.field(u"capaciteBlocField"_s)->isVisible());
        QTest::mouseClick(items.field<QCheckBox>(u"noInspectionSwitch"_s), Qt::LeftButton);
        QVERIFY(!items.field(u"capaciteBlocField"_s)->isVisible());
        QVERIFY(!items.field<QCheckBox>(u"blocSwitch"_s)->isChecked());
    }

    void theGaugeIsABar() {
        RegisterOnScreen items("Materiel", {u"a"_s});
        items.shown->selectRows({0});
        items.openEdit();
        items.edit()->goPage(1);
        items.fill(u"noInspection"_s, u"0"_s);
        items.fill(u"lastRevision"_s, u"2016-06-06T14:30:00"_s);
        items.fill(u"nextRevision"_s, u"2016-06-08T14:30:00"_s);
        auto* bar = items.field<QProgressBar>(u"tempsProgress"_s);
        QCOMPARE(2 * bar->value(), bar->maximum());
        items.fill(u"nextRevision"_s, u"2016-06-07T00:00:00"_s);
        QCOMPARE(bar->value(), bar->maximum());
        QCOMPARE(items.field<QLabel>(u"statusField"_s)->text().contains(u"out of date"_s), true);
    }

    void theSliderStoresTheHeadingAsItMoves() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s});
        wrecks.shown->selectRows({0});
        wrecks.openEdit();
        wrecks.edit()->goPage(1);
        QVERIFY(!wrecks.field(u"orientationSlider"_s)->isEnabled());
        QTest::mouseClick(wrecks.field<QCheckBox>(u"orientationSwitch"_s), Qt::LeftButton);
        auto* slider = wrecks.field<QSlider>(u"orientationSlider"_s);
        QVERIFY(slider->isEnabled());
        for (int i = 0; i < 5; ++i) QTest::keyClick(slider, Qt::Key_Right);
        QCOMPARE(wrecks.record<Epaves>(0).orientation(), 5);
        QCOMPARE(wrecks.field<QLineEdit>(u"orientationField"_s)->text(), u"5"_s);
        QTest::keyClick(wrecks.edit(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(wrecks.record<Epaves>(0).orientation(), 0);
    }

    void todayIsPutIntoTheUpdateDate() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s});
        wrecks.shown->selectRows({0});
        wrecks.openEdit();
        wrecks.fill(u"miseAJour"_s, u"2001-02-03"_s);
        wrecks.press(wrecks.edit()->findChild<QPushButton*>(u"resetDateToNow"_s));
        QCOMPARE(wrecks.date(u"miseAJourField"_s), u"2016-06-07T14:30:00"_s);
    }

    void eraseInTheFormOfTheEquipmentLeavesNothingSelected() {
        RegisterOnScreen items("Materiel", {u"a"_s});
        items.shown->selectRows({0});
        items.openEdit();
        items.press(items.tool(items.edit(), "equipEditWindowToolbar", "blankFields"));
        QCOMPARE(items.shown->selectedRows(), Selection());
        QVERIFY(!items.edit()->view().isEnabled());
        QCOMPARE(items.column(u"matosNo"_s), QStringList{u"a"_s});
        items.press(items.tool(items.edit(), "equipEditWindowToolbar", "addMatos"));
        QCOMPARE(items.column(u"matosNo"_s), QStringList({u"a"_s, u"2"_s}));
        QVERIFY(items.edit()->view().isEnabled());
    }

    void theSaveButtonAsksTheProgramToSave() {
        RegisterOnScreen items("Materiel", {u"a"_s});
        QSignalSpy wanted(items.window.get(), &RegisterWindow::saveWanted);
        items.press(items.tool(items.window.get(), "equipTableViewWindowToolbar", "saveDocument"));
        QCOMPARE(wanted.size(), 1);
    }

    void theWreckToolbarFollowsTheDiversList() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s});
        while (!wrecks.desk.pickLists.list(u"epaves"_s).isEmpty())
            wrecks.desk.pickLists.removeAt(u"epaves"_s, {0});
        QAbstractButton* erase =
            wrecks.tool(wrecks.window.get(), "wreckTableViewWindowToolbar", "deleteWreck");
        QVERIFY(!erase->isEnabled());
        wrecks.desk.pickLists.append(u"epaves"_s, u"Liberty"_s);
        QVERIFY(erase->isEnabled());
    }

    void aDocumentToLookAtOffersNoChange() {
        RegisterOnScreen items("Materiel", {u"a"_s});
        items.document->setReadOnly(true);
        items.clickRow(0);
        items.openEdit();
        for (const char* name : {"addMatos", "deleteMatos"})
            QVERIFY(!items.tool(items.window.get(), "equipTableViewWindowToolbar", name)->isEnabled());
        QVERIFY(!items.tool(items.edit(), "equipEditWindowToolbar", "blankFields")->isEnabled());
        QVERIFY(items.field<QLineEdit>(u"matosNoField"_s)->isReadOnly());
        QVERIFY(items.tool(items.window.get(), "equipTableViewWindowToolbar", "synthese")->isEnabled());
    }

    void openPartsComeBack() {
        RegisterOnScreen wrecks("Epaves", {u"a"_s});
        wrecks.clickRow(0);
        wrecks.openEdit();
        wrecks.edit()->goPage(2);
        wrecks.window->synthesisWindow();
        const QJsonObject parts = wrecks.window->openParts();
        wrecks.window.reset();
        RegisterWindow again(*wrecks.shown);
        again.show();
        again.reopenParts(parts);
        QVERIFY(again.editWindowIfMade()->isVisible());
        QCOMPARE(again.editWindowIfMade()->pageShown(), 2);
        QVERIFY(again.synthesisWindowIfMade()->isVisible());
    }
};

int runRegisterWindowTest(int argc, char** argv) {
    RegisterWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RegisterWindowTest.moc"
