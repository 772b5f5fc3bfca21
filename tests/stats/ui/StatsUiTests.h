#pragma once

#include <QtTest>
#include <QtWidgets>

#include "logbook/ui/LogbookWindow.h"
#include "platform/files/Folder.h"
#include "stats/ui/GraphesWindow.h"
#include "stats/ui/PreviousDivesWindow.h"
#include "stats/ui/ReportWindow.h"
#include "stats/ui/StatisticsWindow.h"
#include "stats/ui/StatsActions.h"
#include "stats/ui/SynthesisChooser.h"
#include "support/TestDesk.h"

int runPrintingTest(int argc, char** argv);
int runStatisticsWindowTest(int argc, char** argv);
int runSynthesisWindowTest(int argc, char** argv);

namespace sargan {

/// A logbook's window with its statistics, synthesis and printing, as the desktop lays it.
struct StatsOnScreen {
    TestDesk desk;
    std::unique_ptr<Carnet> carnet = desk.newLogbook();
    std::unique_ptr<LogbookWindow> window;
    StatsActions* stats = nullptr;
    QMenu* file = nullptr;

    explicit StatsOnScreen(int dives) {
        for (int i = 1; i <= dives; ++i) addDive(10 * i);
        carnet->select({});
        carnet->setUntitledName(QStringLiteral("Untitled"));
        window = std::make_unique<LogbookWindow>(*carnet);
        file = window->menuBar()->addMenu(QStringLiteral("File"));
        QAction* quit = file->addAction(QStringLiteral("Quit"));
        QMenu* menu = window->makeKindMenu();
        window->menuBar()->addMenu(menu);
        stats = new StatsActions(*window);
        stats->addTo(menu);
        stats->addPrintingTo(file, quit);
        window->show();
    }

    void addDive(int depth) {
        carnet->addDive([&] {
            Form& form = carnet->form();
            form.setText(form.find(u"profondeurField"), QString::number(depth));
            form.setText(form.find(u"tempsField"), QStringLiteral("30"));
            form.setText(form.find(u"lieuField"), QStringLiteral("Place at %1 m").arg(depth));
        });
    }
    /// Clicks the item of the logbook's toolbar.
    void pressTool(const char* name) const {
        auto* bar = window->findChild<QToolBar*>(QStringLiteral("tableViewToolbar"));
        for (QAction* item : bar->actions())
            if (item->objectName() == QLatin1String(name)) {
                QTest::mouseClick(bar->widgetForAction(item), Qt::LeftButton);
                return;
            }
        QFAIL(name);
    }
    QAction* action(const char* name) const { return window->findChild<QAction*>(QLatin1String(name)); }
};

/// Clicks a button within a window.
inline void pressButton(QWidget* window, const char* name) {
    auto* button = window->findChild<QPushButton*>(QLatin1String(name));
    QVERIFY2(button, name);
    QTest::mouseClick(button, Qt::LeftButton);
}

inline QString label(QWidget* window, const char* name) {
    auto* found = window->findChild<QLabel*>(QLatin1String(name));
    return found ? found->text() : QStringLiteral("no such label");
}

inline void typeInField(QWidget* window, const char* name, const QString& text) {
    auto* field = window->findChild<QLineEdit*>(QLatin1String(name));
    QVERIFY2(field, name);
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, text);
}

}  // namespace sargan
