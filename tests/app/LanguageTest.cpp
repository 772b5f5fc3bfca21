#include "AppTests.h"
#include "logbook/ui/DiveProfileWindow.h"
#include "platform/ui/FormView.h"
#include "profile/ui/GraphProfileWindow.h"
#include "registers/ui/RegisterEditWindow.h"
#include "registers/ui/RegisterWindow.h"
#include "registers/ui/SynthesisWindow.h"
#include "settings/InterfaceChoice.h"
#include "settings/ui/PreferencesWindow.h"
#include "stats/ui/GraphesWindow.h"
#include "stats/ui/PreviousDivesWindow.h"
#include "stats/ui/ReportWindow.h"
#include "stats/ui/StatisticsWindow.h"
#include "stats/ui/StatsActions.h"
#include "stats/ui/SynthesisChooser.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// A desktop with one document of several records, one of them selected.
struct Opened : Desktop {
    explicit Opened(const QString& golden) {
        suite.launch({copyOf(golden, u"mine."_s + QFileInfo(golden).suffix())});
        QVERIFY(QTest::qWaitForWindowActive(window()));
        if (logbook()) logbook()->carnet().addDive();  // which is selected, and has nothing to be told of
    }
    ~Opened() {
        if (const QStringList left = desk.prompt.finish(); !left.isEmpty())
            qFatal("%s", qPrintable(left.join(u'\n')));
    }
    DocumentWindow* window() { return suite.windows().all().front(); }
    RegisterWindow* list() { return qobject_cast<RegisterWindow*>(window()); }
    StatsActions& stats() { return *logbook()->findChild<StatsActions*>(); }
    Carnet& carnet() { return logbook()->carnet(); }
    /// As the preferences do it.
    void speak(const char* language) {
        const QPointer<DocumentWindow> before = window();
        desk.defaults.store(u"language"_s, QLatin1String(language));
        desk.notifications.post(QLatin1String(interfacechoice::languageChanged), nullptr);
        QTRY_VERIFY(!before);
        QCoreApplication::processEvents();
    }
};

void typeInto(const QWidget& window, const char* control, const QString& text) {
    auto* field = window.findChild<QWidget*>(QLatin1String(control));
    QVERIFY2(field, control);
    field->setFocus();
    formwalk::typeInto(field, text);
}

QString textOf(const QWidget& window, const char* control) {
    if (auto* line = window.findChild<QLineEdit*>(QLatin1String(control))) return line->text();
    if (auto* area = window.findChild<QPlainTextEdit*>(QLatin1String(control))) return area->toPlainText();
    return u"no such control"_s;
}

}  // namespace

/// Another language while windows are open: they stay, in their place, with what was typed.
class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theReportsStayOpenInTheNewLanguage() {
        Opened desktop(u"plongee-v27.carnet"_s);
        StatsActions& stats = desktop.stats();
        stats.statisticsWindow();
        stats.statsSynthesisWindow();
        stats.graphesWindow();
        stats.synthesis().chooser().setTag(synthesiscontrol::selectedDives, 1);
        stats.synthesis().syntheseWindow();
        const QString page = stats.statisticsPageIfMade()->view().toPlainText();
        QTRY_VERIFY(stats.synthesisReportIfMade()->isComplete());
        const QString report = stats.synthesisReportIfMade()->view().toPlainText();
        const QRect place(30, 40, 431, 352);
        stats.synthesisReportIfMade()->setGeometry(place);
        const QString title = stats.graphesIfMade()->windowTitle();
        desktop.speak("fr");
        StatsActions& now = desktop.stats();
        QVERIFY(now.statisticsWindowIfMade() && now.statisticsWindowIfMade()->isVisible());
        QVERIFY(now.statisticsPageIfMade() && now.statisticsPageIfMade()->isVisible());
        QVERIFY(now.synthesisReportIfMade() && now.synthesisReportIfMade()->isVisible());
        QVERIFY(now.graphesIfMade() && now.graphesIfMade()->isVisible());
        QVERIFY(now.statisticsWindowIfMade()->windowTitle().startsWith(u"Statistiques"_s));
        QVERIFY(now.statisticsPageIfMade()->view().toPlainText() != page);
        QVERIFY(now.statisticsPageIfMade()->view().toPlainText().contains(u"Statistiques"_s,
                                                                          Qt::CaseInsensitive));
        QTRY_VERIFY(now.synthesisReportIfMade()->isComplete());
        QVERIFY(now.synthesisReportIfMade()->view().toPlainText() != report);
        QCOMPARE(now.synthesisReportIfMade()->view().toPlainText().count(u"•••"_s), report.count(u"•••"_s));
        QCOMPARE(now.synthesisReportIfMade()->geometry(), place);
        QVERIFY(now.graphesIfMade()->windowTitle() != title);
        // The tools of the statistics window work still: they belong to the new logbook window.
        now.statisticsPageIfMade()->close();
        auto* bar = now.statisticsWindowIfMade()->findChild<QToolBar*>();
        QCOMPARE(bar->actions().size(), 2);
        bar->actions().first()->trigger();
        QVERIFY(now.statisticsPageIfMade()->isVisible());
        desktop.speak("en");
        QTRY_VERIFY(desktop.stats().synthesisReportIfMade()->isComplete());
        QCOMPARE(desktop.stats().synthesisReportIfMade()->view().toPlainText(), report);
        QCOMPARE(desktop.stats().statisticsPageIfMade()->view().toPlainText(), page);
    }

    void aReportOnADiveThatIsNoLongerSelectedStays() {
        Opened desktop(u"plongee-v27.carnet"_s);
        desktop.stats().synthesis().chooser().setTag(synthesiscontrol::selectedDives, 0);
        desktop.stats().synthesis().syntheseWindow();
        const QString report = desktop.stats().synthesisReportIfMade()->view().toPlainText();
        desktop.carnet().select({});
        desktop.speak("fr");
        QCOMPARE(desktop.stats().synthesisReportIfMade()->view().toPlainText(), report);
    }

    void theChooserOfTheSynthesisComesAgain() {
        Opened desktop(u"plongee-v27.carnet"_s);
        desktop.stats().divesForSynthesisWindow();
        desktop.stats().synthesis().chooser().setTag(synthesiscontrol::selectedDives, 1);
        desktop.speak("fr");
        QTRY_VERIFY(desktop.stats().chooserIfMade() && desktop.stats().chooserIfMade()->isVisible());
        QVERIFY(desktop.stats().synthesis().wantsAll());
        desktop.stats().chooserIfMade()->close();
    }

    void previousDivesKeepWhatWasTyped() {
        Opened desktop(u"plongee-v27.carnet"_s);
        desktop.stats().statistics().showEditStatisticsWindow();
        QWidget* editor = desktop.stats().previousDivesIfMade();
        QVERIFY(QTest::qWaitForWindowActive(editor));
        const QString first = editor->findChildren<QLineEdit*>().first()->objectName();
        typeInto(*editor, first.toLatin1(), u"123"_s);
        desktop.speak("fr");
        QVERIFY(desktop.stats().previousDivesIfMade()->isVisible());
        QCOMPARE(textOf(*desktop.stats().previousDivesIfMade(), first.toLatin1()), u"123"_s);
        QVERIFY(!desktop.desk.defaults.contains(u"statistics values"_s));
    }

    void theDiveFormStaysOnItsPaneInItsPlace() {
        Opened desktop(u"plongee-v27.carnet"_s);
        desktop.logbook()->editWindow();
        DiveEditWindow* edit = desktop.logbook()->editWindowIfMade();
        edit->openOn(1);
        const QRect place(50, 60, 701, 402);
        edit->setGeometry(place);
        const QString title = edit->windowTitle();
        desktop.speak("fr");
        edit = desktop.logbook()->editWindowIfMade();
        QVERIFY(edit && edit->isVisible());
        QCOMPARE(edit->paneShown(), 1);
        QCOMPARE(edit->geometry(), place);
        QVERIFY(edit->windowTitle() != title);
    }

    void profileTextsThatWaitToBeStoredWaitOn() {
        Opened desktop(u"plongee-v27.carnet"_s);
        desktop.logbook()->profilInfo();
        DiveProfileWindow* lists = desktop.logbook()->profileWindowIfMade();
        QVERIFY(QTest::qWaitForWindowActive(lists));
        typeInto(*lists, "importASC_Field", u"101"_s);
        QVERIFY(lists->profile().hasPending());
        const NumberArray stored = desktop.carnet().records().last()->ASC_Flag();
        desktop.speak("fr");
        lists = desktop.logbook()->profileWindowIfMade();
        QVERIFY(lists && lists->isVisible() && lists->profile().hasPending());
        QCOMPARE(textOf(*lists, "importASC_Field"), u"101"_s);
        QCOMPARE(lists->profile().form().tag(ControlName{"eraseASC_Switch"}), 1);
        QCOMPARE(lists->profile().form().tag(ControlName{"eraseSLOW_Switch"}), 0);
        QVERIFY(desktop.carnet().records().last()->ASC_Flag() == stored);
        lists->profile().updateProfilInfo();
    }

    void theProfileGraphTheSearchAndTheSheetStay() {
        Opened desktop(u"plongee-v27.carnet"_s);
        desktop.logbook()->profileGraph();
        desktop.logbook()->profileGraphIfMade()->setGeometry(70, 80, 503, 304);
        desktop.logbook()->findChild<QLineEdit*>(u"searchField"_s)->setFocus();
        QTest::keyClicks(desktop.logbook()->findChild<QLineEdit*>(u"searchField"_s), u"epave"_s);
        auto* where = desktop.logbook()->findChild<QToolButton*>(u"rechercher"_s);
        where->menu()->actions().at(3)->trigger();
        desktop.carnet().select({0});
        Desktop::trigger(desktop.logbook(), "renumDives");
        desktop.speak("fr");
        QVERIFY(desktop.logbook()->profileGraphIfMade() &&
                desktop.logbook()->profileGraphIfMade()->isVisible());
        QCOMPARE(desktop.logbook()->profileGraphIfMade()->geometry(), QRect(70, 80, 503, 304));
        QCOMPARE(textOf(*desktop.logbook(), "searchField"), u"epave"_s);
        where = desktop.logbook()->findChild<QToolButton*>(u"rechercher"_s);
        QVERIFY(where->menu()->actions().at(3)->isChecked());
        auto* sheet = desktop.logbook()->findChild<QDialog*>(u"renumDivesWindow"_s);
        QVERIFY(sheet && sheet->isVisible());
        QCOMPARE(sheet->windowTitle(), desktop.desk.strings.ui("Renumber dives"));
        sheet->close();
    }

    void aRegistersFormAndCardStay() {
        Opened desktop(u"epaves-v6.epaves"_s);
        desktop.list()->synthesisWindow();
        desktop.list()->editWindow();
        desktop.list()->editWindowIfMade()->goPage(1);
        desktop.list()->editWindowIfMade()->goPage(0);
        const QRect place(90, 70, 605, 406);
        desktop.list()->editWindowIfMade()->setGeometry(place);
        desktop.list()->synthesisWindowIfMade()->setGeometry(20, 30, 407, 308);
        QVERIFY(QTest::qWaitForWindowActive(desktop.list()->editWindowIfMade()));
        typeInto(*desktop.list()->editWindowIfMade(), "nomField", u"Titanic"_s);
        const QString card = desktop.list()->synthesisWindowIfMade()->shownPage();
        desktop.speak("fr");
        RegisterEditWindow* edit = desktop.list()->editWindowIfMade();
        QVERIFY(edit && edit->isVisible());
        QCOMPARE(edit->geometry(), place);
        QCOMPARE(textOf(*edit, "nomField"), u"Titanic"_s);
        SynthesisWindow* synthesis = desktop.list()->synthesisWindowIfMade();
        QVERIFY(synthesis && synthesis->isVisible());
        QCOMPARE(synthesis->geometry(), QRect(20, 30, 407, 308));
        QVERIFY(synthesis->shownPage() != card);
        QVERIFY(synthesis->shownPage().contains(u"Titanic"_s));
        edit->goPage(1);
        desktop.speak("en");
        QCOMPARE(desktop.list()->editWindowIfMade()->pageShown(), 1);
    }

    void aCardOfNoSelectedRecordStays() {
        Opened desktop(u"epaves-v6.epaves"_s);
        desktop.list()->synthesisWindow();
        const QString card =
            desktop.list()->synthesisWindowIfMade()->findChild<QTextBrowser*>()->toPlainText();
        QVERIFY(!card.isEmpty());
        desktop.list()->shownRegister().selectRows({});
        desktop.speak("fr");
        QCOMPARE(desktop.list()->synthesisWindowIfMade()->findChild<QTextBrowser*>()->toPlainText(), card);
    }

    void preferencesKeepWhatIsNotSavedYet() {
        Opened desktop(u"plongee-v27.carnet"_s);
        PreferencesWindow& preferences = desktop.controller().showPreferencePanel();
        QVERIFY(QTest::qWaitForWindowActive(&preferences));
        // Of these two the weight is one of those that other operations show anew from what is stored.
        typeInto(preferences, "defaultWeightField", u"7"_s);
        typeInto(preferences, "volumeBlocField", u"18"_s);
        auto* language = preferences.findChild<QComboBox*>(u"languagePopUp"_s);
        language->setFocus();
        QTest::keyClick(language, Qt::Key_End);
        QTRY_COMPARE(desktop.desk.strings.language(), Strings::Language::French);
        QTRY_VERIFY(preferences.windowTitle().startsWith(u"Préférences"_s));
        QCOMPARE(textOf(preferences, "defaultWeightField"), u"7"_s);
        QCOMPARE(textOf(preferences, "volumeBlocField"), u"18"_s);
        QVERIFY(!desktop.desk.defaults.contains(u"default weight"_s));
    }

    void calculatorsAndEditorsKeepWhatWasTyped() {
        Opened desktop(u"plongee-v27.carnet"_s);
        CalculatorWindow* calculator = desktop.suite.delegate().calculators().display(u"Nitrox Prof Max");
        QVERIFY(QTest::qWaitForWindowActive(calculator));
        typeInto(*calculator, "fracO2Field", u"32"_s);
        PickListWindow* places = desktop.suite.delegate().pickLists().show(u"showLieuWindow");
        QVERIFY(QTest::qWaitForWindowActive(places));
        typeInto(*places, "lieuField", u"Bre"_s);
        desktop.speak("fr");
        QCOMPARE(textOf(*calculator, "fracO2Field"), u"32"_s);
        QCOMPARE(textOf(*places, "lieuField"), u"Bre"_s);
        QVERIFY(calculator->isVisible() && places->isVisible());
    }
};

int runLanguageTest(int argc, char** argv) {
    LanguageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LanguageTest.moc"
