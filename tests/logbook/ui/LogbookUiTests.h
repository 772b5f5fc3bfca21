#pragma once

#include <QtTest>
#include <QtWidgets>

#include "logbook/ui/DiveEditWindow.h"
#include "logbook/ui/LogbookWindow.h"
#include "platform/ui/EditMenu.h"
#include "platform/ui/SourceTableView.h"
#include "support/FormWalk.h"
#include "support/TestDesk.h"

int runDiveEditWindowTest(int argc, char** argv);
int runDiveLayoutTest(int argc, char** argv);
int runDiveProfileLeavingTest(int argc, char** argv);
int runDiveProfileWindowTest(int argc, char** argv);
int runDiveTypingTest(int argc, char** argv);
int runLogbookEditingTest(int argc, char** argv);
int runLogbookSearchTest(int argc, char** argv);
int runLogbookTableTest(int argc, char** argv);

namespace sargan {

/// A logbook window as the desktop shows it, with its Edit and Dive menus.
struct LogbookOnScreen {
    TestDesk desk;
    std::unique_ptr<Carnet> carnet = desk.newLogbook();
    std::unique_ptr<LogbookWindow> window;

    explicit LogbookOnScreen(int dives = 0) {
        for (int i = 1; i <= dives; ++i) addQuietly(i);
        carnet->select({});
        carnet->setUntitledName(QStringLiteral("Untitled"));
        window = std::make_unique<LogbookWindow>(*carnet);
        auto* edit = new EditMenu(*window);
        window->menuBar()->addMenu(edit->menu());
        window->menuBar()->addMenu(window->makeKindMenu());
        window->shareWithEditWindow(edit->undoActions());
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get())) qFatal("the window does not become active");
    }

    void addQuietly(int number) {
        carnet->addDive([&] {
            Form& form = carnet->form();
            form.setText(form.find(u"lieuField"), QStringLiteral("Place %1").arg(number));
            form.setText(form.find(u"profondeurField"), QString::number(10 + number));
        });
    }
    QAction* action(const char* name) const { return window->findChild<QAction*>(QLatin1String(name)); }
    /// Opens the edit window as the Edit command does, and waits until it has the keyboard.
    void openEdit() const {
        window->editWindow();
        if (!QTest::qWaitForWindowActive(edit())) qFatal("the edit window does not become active");
    }
    /// Presses the button of a toolbar's item.
    void press(QWidget* in, const char* bar, const char* name) const {
        auto* toolbar = in->findChild<QToolBar*>(QLatin1String(bar));
        QVERIFY(toolbar);
        for (QAction* item : toolbar->actions())
            if (item->objectName() == QLatin1String(name)) {
                QTest::mouseClick(toolbar->widgetForAction(item), Qt::LeftButton);
                return;
            }
        QFAIL(name);
    }
    void pressHere(const char* name) const { press(window.get(), "tableViewToolbar", name); }
    void pressInEdit(const char* name) const { press(edit(), "editWindowToolbar", name); }
    DiveEditWindow* edit() const { return window->editWindowIfMade(); }
    template <class W>
    W* field(const char* name) const {
        return edit()->findChild<W*>(QLatin1String(name));
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) const {
        const QRect cell = window->table().visualRect(window->table().model()->index(row, 3));
        QTest::mouseClick(window->table().viewport(), Qt::LeftButton, keys, cell.center());
    }
    QList<int> numbers() const {
        QList<int> list;
        for (const auto& dive : carnet->records()) list << dive->noPlongee();
        return list;
    }
    Selection shownSelection() const {
        Selection rows;
        const QModelIndexList selected = window->table().selectionModel()->selectedRows();
        for (const QModelIndex& index : selected) rows << index.row();
        std::sort(rows.begin(), rows.end());
        return rows;
    }
};

}  // namespace sargan
