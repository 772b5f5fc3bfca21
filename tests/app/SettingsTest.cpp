#include "AppTests.h"
#include "app/ReminderWindow.h"
#include "platform/ui/FormView.h"
#include "settings/ui/PreferencesWindow.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

template <typename W>
W* find(const QWidget& window, const char* name) {
    auto* widget = window.findChild<W*>(QLatin1String(name));
    if (!widget) throw std::runtime_error(std::string("no widget ") + name);
    return widget;
}

/// A desktop with one dive in a logbook, its edit window open and something typed but not stored.
struct Busy : Desktop {
    Busy() {
        suite.launch({});
        logbook()->addDive();
        QVERIFY(QTest::qWaitForWindowActive(edit()));
        auto* pane = edit()->findChild<QWidget*>(u"siteField"_s);
        pane->setFocus();
        formwalk::typeInto(pane, u"Le Rubis"_s);
    }
    DiveEditWindow* edit() { return logbook()->editWindowIfMade(); }
    PreferencesWindow& preferences() {
        PreferencesWindow& window = suite.controller().showPreferencePanel();
        if (!QTest::qWaitForWindowActive(&window)) qFatal("the preferences do not come up");
        return window;
    }
    /// Chooses an item of a menu of the preferences by the keyboard.
    void choose(const char* menu, int item) {
        auto* combo = find<QComboBox>(preferences(), menu);
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_Home);
        for (int i = 0; i < item; ++i) QTest::keyClick(combo, Qt::Key_Down);
        QCoreApplication::processEvents();
    }
    QStringList menuTitles() {
        QStringList titles;
        for (const QAction* action : logbook()->menuBar()->actions()) titles << action->text();
        return titles;
    }
};

}  // namespace

class SettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePreferencesOpenFromTheMenuAndAreOneWindow() {
        Desktop desktop;
        desktop.suite.launch({});
        QAction* item = Desktop::action(desktop.logbook(), "showPreferencePanel");
        QCOMPARE(item->shortcut(), QKeySequence(u"Ctrl+,"_s));
        QTest::keyClick(desktop.logbook(), Qt::Key_Comma, Qt::ControlModifier);
        PreferencesWindow* window = &desktop.suite.controller().showPreferencePanel();
        QVERIFY(window->isVisible());
        item->trigger();
        QCOMPARE(&desktop.suite.controller().showPreferencePanel(), window);
    }

    void everyListHasAnEntryInTheMenu() {
        Desktop desktop;
        desktop.suite.launch({});
        for (const PickListEditorSpec& spec : pickListEditors()) {
            Desktop::trigger(desktop.logbook(), spec.menuAction);
            PickListWindow& window = desktop.suite.delegate().pickLists().show(spec);
            QVERIFY2(window.isVisible(), spec.menuAction);
            QCOMPARE(window.objectName(), QLatin1String(spec.layout));
        }
    }

    void aWordOfAnEditorIsOfferedInTheDiveForm() {
        Busy desktop;
        PickListWindow& places = *desktop.suite.delegate().pickLists().show(u"showLieuWindow");
        auto* field = find<QLineEdit>(places, "lieuField");
        QTest::keyClicks(field, u"Brest"_s);
        QTest::keyClick(field, Qt::Key_Return);
        desktop.edit()->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(desktop.edit()));
        auto* combo = find<QComboBox>(*desktop.edit(), "lieuField");
        combo->setFocus();
        combo->showPopup();
        QVERIFY(combo->findText(u"Brest"_s) >= 0);
        combo->hidePopup();
    }

    void anotherLanguageIsInEveryOpenWindowAtOnce() {
        Busy desktop;
        desktop.suite.delegate().calculators().display(u"Nitrox Prof Max");
        PickListWindow& places = *desktop.suite.delegate().pickLists().show(u"showLieuWindow");
        ReminderWindow& note = desktop.controller().penseBeteWindow();
        note.bringToFront();
        const QString before =
            desktop.suite.delegate().calculators().display(u"Nitrox Prof Max")->windowTitle();
        desktop.choose("languagePopUp", 2);
        QCOMPARE(desktop.desk.strings.language(), Strings::Language::French);
        QTRY_COMPARE(places.windowTitle(), u"Lieux"_s);
        QVERIFY(desktop.menuTitles().contains(u"&Réglages"_s));
        QCOMPARE(find<QAction>(desktop.preferences(), "affichage")->text(), u"Affichage"_s);
        QCOMPARE(note.windowTitle(), desktop.desk.strings.ui("Reminder note"));
        QVERIFY(note.windowTitle() != u"Reminder note"_s);
        QVERIFY(desktop.suite.delegate().calculators().display(u"Nitrox Prof Max")->windowTitle() != before);
        desktop.choose("languagePopUp", 1);
        QTRY_COMPARE(places.windowTitle(), u"Places"_s);
        QVERIFY(desktop.menuTitles().contains(u"&Settings"_s));
    }

    void anotherLanguageKeepsWhatWasTypedAndWhatIsOpen() {
        Busy desktop;
        const LogbookWindow* old = desktop.logbook();
        desktop.choose("languagePopUp", 2);
        QTRY_VERIFY(desktop.logbook() != old);
        QCOMPARE(desktop.count(), 1);
        QVERIFY(desktop.edit() && desktop.edit()->isVisible());
        QCOMPARE(find<QComboBox>(*desktop.edit(), "siteField")->currentText(), u"Le Rubis"_s);
        QCOMPARE(desktop.logbook()->carnet().records().first()->site(), u"Le Rubis"_s);
        QVERIFY(desktop.logbook()->document().canUndo());
        QVERIFY(desktop.preferences().isVisible());
    }

    void theSameLanguageChangesNothing() {
        Busy desktop;
        const LogbookWindow* old = desktop.logbook();
        desktop.choose("languagePopUp", 1);
        QCOMPARE(desktop.logbook(), old);
    }

    void appearancesChangeAtOnceAndBack() {
        Busy desktop;
        const auto lightness = [] { return QApplication::palette().color(QPalette::Window).lightness(); };
        desktop.choose("appearancePopUp", 2);
        QTRY_VERIFY(lightness() < 100);
        QTRY_VERIFY(desktop.logbook()->palette().color(QPalette::WindowText).lightness() > 200);
        desktop.choose("appearancePopUp", 1);
        QTRY_VERIFY(lightness() > 200);
        desktop.choose("appearancePopUp", 0);
        QTRY_COMPARE(QApplication::palette().color(QPalette::Window),
                     QApplication::style()->standardPalette().color(QPalette::Window));
    }

    void aStoredAppearanceHoldsFromTheStart() {
        {
            TestDesk desk;
            desk.defaults.store(u"appearance"_s, u"dark"_s);
            const DesktopSuite suite(desk.kinds, desk.desk);
            QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 100);
        }
        QApplication::setPalette(QPalette());
    }

    void savedUnitsReachTheOpenLogbook() {
        Busy desktop;
        int reloads = 0;
        QObject::connect(&desktop.logbook()->carnet(), &Carnet::tableReloadWanted, desktop.logbook(),
                         [&reloads] { ++reloads; });
        auto* units = find<QCheckBox>(desktop.preferences(), "usUnitsSwitch");
        units->setFocus();
        QTest::keyClick(units, Qt::Key_Space);
        QTest::mouseClick(find<QPushButton>(desktop.preferences(), "savePrefs"), Qt::LeftButton);
        QVERIFY(desktop.desk.defaults.boolean(u"us units"_s));
        QCOMPARE(reloads, 1);
    }
};

int runSettingsTest(int argc, char** argv) {
    SettingsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SettingsTest.moc"
