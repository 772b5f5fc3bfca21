#include "support/SpokenNames.h"

#include "AppTests.h"
#include "app/ReminderWindow.h"
#include "calculators/CalculatorSpec.h"
#include "registers/ui/RegisterWindow.h"
#include "settings/PickListEditors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// Whoever hears the windows instead of seeing them hears what each control is for.
class SpokenNamesTest : public QObject {
    Q_OBJECT

    /// The controls that say nothing, by the title of their window; one a line.
    static QString silentControls(int* windows) {
        QStringList silent;
        *windows = 0;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || qobject_cast<const QMenu*>(window)) continue;
            ++*windows;
            for (const QString& control : spoken::namelessIn(*window))
                silent << window->windowTitle() + u": "_s + control;
        }
        return silent.join(u'\n');
    }
    static void press(const char* name) {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            auto* button =
                window->isVisible() ? window->findChild<QAbstractButton*>(QLatin1String(name)) : nullptr;
            if (button) return button->click();
        }
        QFAIL(name);
    }
    static void openAllOf(Desktop& desktop, LogbookWindow& logbook) {
        logbook.addDive();
        for (const char* action :
             {"editWindow", "profil", "profilData", "statistics", "statsSynthesis", "graphes", "synthese"})
            desktop.trigger(&logbook, action);
        press("syntheseWindow");
        press("showEditStatisticsWindow");
        for (const char* action : {"renumDives", "printPreview"}) desktop.trigger(&logbook, action);
    }
    static void openAllOf(RegisterWindow& list) {
        list.addRecord();
        list.editWindow();
        if (list.shownRegister().hasCard()) list.synthesisWindow();
    }

private Q_SLOTS:
    void theLogbooksWindows() {
        Desktop desktop;
        desktop.suite.launch({});
        openAllOf(desktop, *desktop.logbook());
        int windows = 0;
        QCOMPARE(silentControls(&windows), QString());
        QCOMPARE(windows, 11);
    }

    void theRegistersWindows_data() {
        QTest::addColumn<QString>("action");
        const TestDesk desk;
        for (const DocumentKind& kind : desk.kinds.all())
            if (&kind != &desk.kinds.standard())
                QTest::newRow(kind.typeName) << QString::fromLatin1(kind.newAction);
    }
    void theRegistersWindows() {
        QFETCH(QString, action);
        Desktop desktop;
        desktop.controller().newDocumentMenuAction(action);
        auto* list = qobject_cast<RegisterWindow*>(desktop.suite.windows().all().front());
        QVERIFY(list);
        openAllOf(*list);
        int windows = 0;
        QCOMPARE(silentControls(&windows), QString());
        QVERIFY(windows >= 2);
    }

    void theOtherWindows() {
        Desktop desktop;
        desktop.desk.defaults.store(u"recent documents"_s, QJsonArray());
        desktop.suite.launch({});
        desktop.controller().showPreferencePanel();
        desktop.controller().penseBeteWindow().bringToFront();
        for (const PickListEditorSpec& editor : pickListEditors())
            desktop.suite.delegate().pickLists().show(editor);
        int calculators = 0;
        for (const CalculatorSpec& calculator : calculatorSpecs()) {
            desktop.suite.delegate().calculators().display(calculator);
            ++calculators;
        }
        int windows = 0;
        QCOMPARE(silentControls(&windows), QString());
        QCOMPARE(windows, 1 + 2 + 16 + calculators);
    }

    /// A number in a table of numbers says nothing by itself.
    void cellsOfATableAreNamedAfterRowAndColumn_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("bailout_1_VolumeField") << u"Bail-out tanks, 1, Volume (l)"_s;
        QTest::newRow("bailout_3_HeField") << u"Bail-out tanks, 3, He (%)"_s;
        QTest::newRow("depthDeco_Level_2_Field") << u"Decompression stages, 2, Depth (m)"_s;
        QTest::newRow("decoO2_Level_6_Field") << u"Decompression stages, 6, O₂ (%)"_s;
        QTest::newRow("equip_12Field") << u"Dive bag, 12"_s;
        QTest::newRow("runtimeField") << u"Run time"_s;
        QTest::newRow("notesField") << u"Notes"_s;
        QTest::newRow("departField") << u"Start"_s;
        QTest::newRow("volumeBlocField") << u"Volume"_s;
        QTest::newRow("meteoPopUp") << u"Sky"_s;
        QTest::newRow("nocturneSwitch") << u"Night dive"_s;
    }
    void cellsOfATableAreNamedAfterRowAndColumn() {
        QFETCH(QString, name);
        Desktop desktop;
        desktop.suite.launch({});
        desktop.logbook()->addDive();
        auto* control = desktop.logbook()->editWindowIfMade()->findChild<QWidget*>(
            QLatin1String(QTest::currentDataTag()));
        QVERIFY(control);
        QCOMPARE(spoken::nameOf(control), name);
    }
};

int runSpokenNamesTest(int argc, char** argv) {
    SpokenNamesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SpokenNamesTest.moc"
