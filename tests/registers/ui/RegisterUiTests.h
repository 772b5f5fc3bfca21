#pragma once

#include <QtTest>
#include <QtWidgets>

#include "platform/ui/EditMenu.h"
#include "platform/ui/FormView.h"
#include "registers/RegisterBench.h"
#include "registers/ui/RegisterEditWindow.h"
#include "registers/ui/RegisterTableView.h"
#include "registers/ui/RegisterWindow.h"
#include "registers/ui/SynthesisWindow.h"
#include "support/FormWalk.h"

int runOtherRegistersTest(int argc, char** argv);
int runRegisterPagesTest(int argc, char** argv);
int runRegisterPictureTest(int argc, char** argv);
int runRegisterWindowTest(int argc, char** argv);

namespace sargan {

/// A register's window as the desktop shows it, with its menus.
struct RegisterOnScreen : RegisterBench {
    std::unique_ptr<RegisterWindow> window;

    explicit RegisterOnScreen(const char* type, const QStringList& names = {})
        : RegisterBench(type, Strings::Language::English) {
        const QString first = QLatin1String(form().spec(0).name);
        for (const QString& name : names) add({{first, name}});
        shown->selectRows({});
        document->setUntitledName(QStringLiteral("Untitled"));
        window = std::make_unique<RegisterWindow>(*shown);
        auto* edit = new EditMenu(*window);
        window->menuBar()->addMenu(edit->menu());
        window->menuBar()->addMenu(window->makeKindMenu());
        window->shareWithEditWindow(edit->undoActions());
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get())) qFatal("the window does not become active");
    }

    RegisterEditWindow* edit() const { return window->editWindowIfMade(); }
    void openEdit() const {
        window->editWindow();
        if (!QTest::qWaitForWindowActive(edit())) qFatal("the edit window does not become active");
    }
    template <class W = QWidget>
    W* field(const QString& name) const {
        return edit()->findChild<W*>(name);
    }
    /// The button of a toolbar's item; null when there is none.
    QAbstractButton* tool(QWidget* in, const char* bar, const char* name) const {
        auto* toolbar = in->findChild<QToolBar*>(QLatin1String(bar));
        if (!toolbar) qFatal("no toolbar %s", bar);
        for (QAction* item : toolbar->actions())
            if (item->objectName() == QLatin1String(name))
                return qobject_cast<QAbstractButton*>(toolbar->widgetForAction(item));
        return nullptr;
    }
    void press(QAbstractButton* button) const {
        if (!button) qFatal("no such button");
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) const {
        const QRect cell = window->table().visualRect(window->table().model()->index(row, 1));
        QTest::mouseClick(window->table().viewport(), Qt::LeftButton, keys, cell.center());
    }
    void clickHeader(int column) const {
        QHeaderView* header = window->table().horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    }
};

}  // namespace sargan
