#include "stats/ui/StatsUiTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class StatisticsWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePanelShowsEveryFieldAndFollowsTheLogbook() {
        StatsOnScreen screen(2);
        screen.pressTool("statistics");
        StatisticsWindow* panel = screen.stats->statisticsWindowIfMade();
        QVERIFY(panel && panel->isVisible());
        const Form& form = screen.stats->statistics().panel();
        for (int i = 0; i < form.count(); ++i) {
            const QString name = QLatin1String(form.spec(i).name);
            auto* widget = panel->findChild<QWidget*>(name);
            QVERIFY2(widget, qPrintable(name));
            if (auto* shown = qobject_cast<QLabel*>(widget))
                QCOMPARE(QString(shown->text()).replace(u'\n', u'\r'), form.text(i));
        }
        QCOMPARE(label(panel, "statStateField"), u"Total dives: 2"_s);
        QCOMPARE(label(panel, "statProf_2Field"), u"1"_s);
        QCOMPARE(label(panel, "statP_Prof_2Field"), u"50.0 %"_s);
        screen.addDive(65);
        QCOMPARE(label(panel, "statStateField"), u"Total dives: 3"_s);
        QCOMPARE(label(panel, "statProfMaxField"), u"65 m"_s);
        screen.carnet->undo();
        QCOMPARE(label(panel, "statStateField"), u"Total dives: 2"_s);
    }

    void previousDivesAreTypedAndTheSwitchLeavesThemOut() {
        StatsOnScreen screen(1);
        screen.pressTool("statistics");
        StatisticsWindow* panel = screen.stats->statisticsWindowIfMade();
        pressButton(panel, "showEditStatisticsWindow");
        PreviousDivesWindow* editor = screen.stats->previousDivesIfMade();
        QVERIFY(editor && editor->isVisible());
        for (const PreviousField& field : previousFields())
            QVERIFY2(editor->findChild<QLineEdit*>(QLatin1String(field.field)), field.field);
        typeInField(editor, "statSumDivesField", u"9"_s);
        typeInField(editor, "statSumBioField", u"4"_s);
        typeInField(editor, "statSumTempMinField", u"-1"_s);
        pressButton(editor, "validateStatisticsValues");
        QVERIFY(!editor->isVisible());
        QCOMPARE(label(panel, "statStateField"), u"Total dives: 10"_s);
        QCOMPARE(label(panel, "statBioField"), u"4"_s);
        QCOMPARE(label(panel, "statTempEauMinField"), u"-1 °C"_s);
        const QJsonObject stored = screen.desk.defaults.stored(u"statistics values"_s).toObject();
        QCOMPARE(stored.value(u"total plongees"_s), QJsonValue(9));

        auto* box = panel->findChild<QCheckBox*>(u"previousDivesNoSwitch"_s);
        QVERIFY(box);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        QVERIFY(box->isChecked());
        QCOMPARE(label(panel, "statStateField"), u"Total dives: 1"_s);
        QCOMPARE(label(panel, "statBioField"), u"0"_s);
    }

    void givingUpLeavesPreviousDives() {
        StatsOnScreen screen(1);
        screen.pressTool("statistics");
        pressButton(screen.stats->statisticsWindowIfMade(), "showEditStatisticsWindow");
        PreviousDivesWindow* editor = screen.stats->previousDivesIfMade();
        typeInField(editor, "statSumDivesField", u"9"_s);
        pressButton(editor, "closeEditStatisticsWindow");
        QVERIFY(!editor->isVisible());
        QVERIFY(!screen.desk.defaults.contains(u"statistics values"_s));
    }

    void returnStoresPreviousDivesUnlessItIsPressedOnCancel() {
        StatsOnScreen screen(1);
        screen.pressTool("statistics");
        StatisticsWindow* panel = screen.stats->statisticsWindowIfMade();
        QVERIFY(QTest::qWaitForWindowActive(panel));
        QCOMPARE(panel->focusWidget()->objectName(), u"previousDivesNoSwitch"_s);
        pressButton(panel, "showEditStatisticsWindow");
        PreviousDivesWindow* editor = screen.stats->previousDivesIfMade();
        QVERIFY(QTest::qWaitForWindowActive(editor));
        // The keyboard is in the first field, whose 0 is replaced by what is typed.
        QCOMPARE(editor->focusWidget()->objectName(), u"statSumBioField"_s);
        QTest::keyClicks(editor->focusWidget(), u"3"_s);
        editor->findChild<QPushButton*>(u"closeEditStatisticsWindow"_s)->setFocus();
        QTest::keyClick(editor->focusWidget(), Qt::Key_Return);
        QVERIFY(!editor->isVisible());
        QCOMPARE(label(panel, "statBioField"), u"0"_s);

        pressButton(panel, "showEditStatisticsWindow");
        QVERIFY(QTest::qWaitForWindowActive(editor));
        QTest::keyClicks(editor->focusWidget(), u"7"_s);
        QTest::keyClick(editor->focusWidget(), Qt::Key_Return);
        QVERIFY(!editor->isVisible());
        QCOMPARE(label(panel, "statBioField"), u"7"_s);
    }

    void thePageShowsWhatThePanelShows() {
        StatsOnScreen screen(2);
        screen.action("statsSynthesis")->trigger();
        ReportWindow* page = screen.stats->statisticsPageIfMade();
        QVERIFY(page && page->isVisible());
        QCOMPARE(page->view().objectName(), u"statisticsField"_s);
        QVERIFY(page->view().toPlainText().contains(u"Total dives: 2"_s));
        screen.addDive(40);
        QVERIFY(page->view().toPlainText().contains(u"Total dives: 3"_s));
        screen.stats->statistics().panel().setTag(statcontrol::ignorePrevious, 1);
        QVERIFY(page->view().toPlainText().contains(u"without the dives made before"_s));
    }

    void theGraphsFollowTheLogbookAndTheColours() {
        StatsOnScreen screen(1);
        screen.desk.defaults.store(u"alpha background color"_s, 0);
        screen.action("graphes")->trigger();
        GraphesWindow* window = screen.stats->graphesIfMade();
        QVERIFY(window && window->isVisible());
        GraphesView& view = window->view();
        QVERIFY(view.hasMouseTracking());
        view.setFixedSize(900, 500);
        QTest::qWait(20);
        const auto at = [&view](int x, int y) { return view.grab().toImage().pixelColor(x, 500 - y); };
        QCOMPARE(at(150, 440), QColor(0, 0, 255));  // the only dive, 10 m deep
        screen.addDive(22);
        QCOMPARE(at(150, 440), QColor(255, 255, 255));
        QCOMPARE(at(150, 240), QColor(0, 0, 255));
        QCOMPARE(at(215, 240), QColor(0, 0, 255));
        screen.desk.defaults.store(u"alpha background color"_s, 1);
        int paints = 0;
        struct Counter : QObject {
            int& count;
            explicit Counter(int& counted) : count(counted) {}
            bool eventFilter(QObject*, QEvent* event) override {
                count += event->type() == QEvent::Paint;
                return false;
            }
        } counter(paints);
        view.installEventFilter(&counter);
        screen.desk.notifications.post(u"fillProfileChanged"_s, nullptr);
        QTRY_VERIFY(paints > 0);
        QCOMPARE(at(10, 490), QColor(128, 128, 128));
    }

    void picturesAreSavedInTheFormatOfTheirName() {
        StatsOnScreen screen(1);
        screen.action("graphes")->trigger();
        GraphesWindow* window = screen.stats->graphesIfMade();
        const Folder folder;
        QString suggested;
        window->chooseFile = [&](const QString& name) {
            suggested = name;
            return folder.path(u"g.svg"_s);
        };
        window->findChild<QAction*>(u"savePicture"_s)->trigger();
        QCOMPARE(suggested, u"Statistics graphs – Untitled.png"_s);
        QVERIFY(folder.content(u"g.svg"_s).contains("<svg"));
        QVERIFY(window->savePicture(folder.path(u"g.png"_s)));
        QCOMPARE(QImage(folder.path(u"g.png"_s)).size(), QSize(900, 500));
        screen.desk.prompt.expectAlert(u"This program cannot write a file with such an ending."_s);
        QVERIFY(!window->savePicture(folder.path(u"g.bmp"_s)));
        QCOMPARE(screen.desk.prompt.finish(), QStringList());
        QCOMPARE(folder.names(), QStringList({u"g.png"_s, u"g.svg"_s}));
    }

    void windowsGoWithTheLogbooks() {
        StatsOnScreen screen(1);
        screen.pressTool("statistics");
        screen.action("graphes")->trigger();
        screen.action("statsSynthesis")->trigger();
        const QPointer<QWidget> panel = screen.stats->statisticsWindowIfMade(),
                                graphs = screen.stats->graphesIfMade();
        screen.window.reset();
        QVERIFY(!panel && !graphs);
    }

    void aChangeOfLanguageIsFollowed() {
        StatsOnScreen screen(1);
        screen.pressTool("statistics");
        StatisticsWindow* panel = screen.stats->statisticsWindowIfMade();
        screen.desk.strings.setLanguage(Strings::Language::French);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(panel, &change);
        QCOMPARE(label(panel, "statStateField"), u"Nombre total de plongées : 1"_s);
        QCOMPARE(panel->windowTitle(), u"Statistiques – Untitled"_s);
    }
};

int runStatisticsWindowTest(int argc, char** argv) {
    StatisticsWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "StatisticsWindowTest.moc"
