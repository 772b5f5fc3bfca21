#include "settings/ui/PreferencesWindow.h"

#include "SettingsUiTests.h"
#include "platform/ui/FormView.h"
#include "settings/Colors.h"

using namespace sargan;
using namespace settingsui;
using namespace Qt::StringLiterals;

namespace {

struct Opened {
    SettingsBench bench;
    std::unique_ptr<PreferencesWindow> window;
    QColor chosen;  ///< what the next colour dialog answers

    explicit Opened(const std::function<void(UserDefaults&)>& before = {}) {
        if (before) before(bench.defaults);
        window = std::make_unique<PreferencesWindow>(bench.desk);
        window->view().choosers.color = [this](QWidget*, const QColor&) { return chosen; };
        open();
    }
    void open() const {
        window->bringToFront();
        if (!QTest::qWaitForWindowActive(window.get())) qFatal("the window does not become active");
    }
    QToolBar* toolbar() const { return find<QToolBar>(*window, "prefsToolbar"); }
    void clickItem(const char* id) const {
        QTest::mouseClick(toolbar()->widgetForAction(find<QAction>(*window, id)), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
};

}  // namespace

class PreferencesWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theToolbarHasSixItemsInOrder() {
        const Opened opened;
        QStringList items;
        for (const QAction* item : opened.toolbar()->actions())
            items << item->objectName() + u' ' + item->text();
        QCOMPARE(items, QStringList({u"general General"_s, u"carnet Logbook"_s, u"affichage Display"_s,
                                     u"profil Profile"_s, u"deco Deco"_s, u"rebreather Rebreather"_s}));
        for (const QAction* item : opened.toolbar()->actions()) QVERIFY(!item->icon().isNull());
    }

    void itemsSwitchPanesAndTheWindowTakesTheirSize() {
        const Opened opened;
        QList<QSize> sizes;
        int pane = 0;
        for (const char* id : {"general", "carnet", "affichage", "profil", "deco", "rebreather"}) {
            opened.clickItem(id);
            QCOMPARE(opened.window->view().currentPane(), pane++);
            const auto* area = find<QScrollArea>(*opened.window, id);
            QVERIFY2(area->viewport()->height() >= area->widget()->minimumSizeHint().height(), id);
            QVERIFY2(area->viewport()->width() >= area->widget()->minimumSizeHint().width(), id);
            sizes << opened.window->size();
        }
        QVERIFY(sizes.at(1).height() > sizes.at(4).height());
    }

    void everyControlInViewIsReachedByALetterOfItsOwn_data() {
        QTest::addColumn<int>("language");
        QTest::newRow("English") << int(Strings::Language::English);
        QTest::newRow("French") << int(Strings::Language::French);
    }
    void everyControlInViewIsReachedByALetterOfItsOwn() {
        QFETCH(int, language);
        SettingsBench bench;
        bench.strings.setLanguage(Strings::Language(language));
        PreferencesWindow window(bench.desk);
        const auto letterOf = [](const QString& text) {
            const qsizetype at = text.indexOf(u'&');
            return at < 0 ? QString() : text.mid(at + 1, 1).toLower();
        };
        const QStringList foot{letterOf(find<QPushButton>(window, "savePrefs")->text()),
                               letterOf(find<QPushButton>(window, "resetPreferences")->text())};
        for (const char* id : {"general", "carnet", "affichage", "profil", "deco", "rebreather"}) {
            QStringList letters = foot;
            for (const QLabel* label : find<QScrollArea>(window, id)->findChildren<QLabel*>())
                if (label->buddy()) letters << letterOf(label->text());
            QVERIFY2(letters.size() > foot.size() && !letters.contains(QString()), id);
            QCOMPARE(QSet<QString>(letters.begin(), letters.end()).size(), letters.size());
        }
    }

    void operationsSwitchPanesToo() {
        const Opened opened;
        opened.window->preferences().form().press(u"goView_4"_s);
        QCOMPARE(opened.window->view().currentPane(), 3);
        QVERIFY(find<QAction>(*opened.window, "profil")->isChecked());
    }

    void showsWhatIsStoredWheneverItOpens() {
        const Opened opened([](UserDefaults& defaults) {
            defaults.store(u"tank volume"_s, 12);
            defaults.store(u"column site"_s, 0);
            defaults.store(u"us units"_s, 1);
        });
        QCOMPARE(find<QLineEdit>(*opened.window, "volumeBlocField")->text(), u"12"_s);
        QVERIFY(find<QCheckBox>(*opened.window, "usUnitsSwitch")->isChecked());
        opened.clickItem("affichage");
        QVERIFY(!find<QCheckBox>(*opened.window, "siteColumnSwitch")->isChecked());
        QVERIFY(find<QCheckBox>(*opened.window, "dateColumnSwitch")->isChecked());
    }

    void whatIsTypedIsStoredWhenSaved() {
        Opened opened;
        type(*opened.window, "volumeBlocField", u"18"_s);
        QTest::mouseClick(find<QCheckBox>(*opened.window, "usUnitsSwitch"), Qt::LeftButton, {}, QPoint(6, 8));
        opened.clickItem("profil");
        opened.chosen = QColor(0, 255, 0);
        QTest::mouseClick(find<QToolButton>(*opened.window, "plotColorWell"), Qt::LeftButton);
        QVERIFY(opened.window->isWindowModified());
        QCOMPARE(find<QLabel>(*opened.window, "prefsFeedback")->text(), u"Not saved yet"_s);
        QVERIFY(opened.bench.defaults.stored(u"tank volume"_s).isUndefined());
        click(*opened.window, "savePrefs");
        QCOMPARE(opened.bench.defaults.stored(u"tank volume"_s), QJsonValue(18));
        QCOMPARE(opened.bench.defaults.stored(u"us units"_s), QJsonValue(1));
        QCOMPARE(storedColor(opened.bench.defaults, u"plot color"_s, {}), QColor(0, 255, 0));
        QVERIFY(!opened.window->isWindowModified());
        QCOMPARE(find<QLabel>(*opened.window, "prefsFeedback")->text(), u"Saved"_s);
    }

    void savingTellsTheDocumentsWhatIsStored() {
        Opened opened;
        QStringList posts;
        QString seen;
        opened.bench.notifications.onPost = [&](const QString& name) {
            posts << name;
            if (name == u"updateDeco"_s) seen = opened.bench.defaults.text(u"stop interval"_s);
        };
        opened.clickItem("deco");
        type(*opened.window, "stopIntervalField", u"6"_s);
        QTest::keyClick(opened.window.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(posts, QStringList({u"updateTableView"_s, u"profile"_s, u"updateEditDive"_s, u"updateDeco"_s,
                                     u"updateRebreather"_s, u"updateColumnsTableView"_s}));
        QCOMPARE(seen, u"6"_s);
    }

    void resetThenCloseLeavesTheStore() {
        const Opened opened([](UserDefaults& defaults) { defaults.store(u"tank volume"_s, 12); });
        click(*opened.window, "resetPreferences");
        QCOMPARE(find<QLineEdit>(*opened.window, "volumeBlocField")->text(), u"15"_s);
        QTest::keyClick(opened.window.get(), Qt::Key_Escape);
        QVERIFY(!opened.window->isVisible());
        QCOMPARE(opened.bench.defaults.stored(u"tank volume"_s), QJsonValue(12));
        QVERIFY(opened.bench.defaults.stored(u"tank pressure"_s).isUndefined());
        opened.open();
        QCOMPARE(find<QLineEdit>(*opened.window, "volumeBlocField")->text(), u"12"_s);
    }

    void aStoreThatCannotBeWrittenIsShown() {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"settings.json"_s));
        SettingsBench bench;
        UserDefaults broken(folder.path());
        Desk desk{bench.prompt, broken, bench.strings, bench.notifications, bench.pickLists, Clock(), Log()};
        PreferencesWindow window(desk);
        window.bringToFront();
        click(window, "savePrefs");
        const QString told = find<QLabel>(window, "prefsFeedback")->text();
        QVERIFY2(told.contains(u"settings.json"_s), qPrintable(told));
    }

    void anotherLanguageKeepsWhatIsTypedAndThePane() {
        Opened opened;
        type(*opened.window, "volumeBlocField", u"18"_s);
        opened.clickItem("carnet");
        opened.bench.strings.setLanguage(Strings::Language::French);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(opened.window.get(), &change);
        QCoreApplication::processEvents();
        QCOMPARE(opened.window->windowTitle(), u"Préférences[*]"_s);
        QCOMPARE(find<QAction>(*opened.window, "general")->text(), u"Général"_s);
        QCOMPARE(opened.window->view().currentPane(), 1);
        QCOMPARE(find<QLineEdit>(*opened.window, "volumeBlocField")->text(), u"18"_s);
        QCOMPARE(find<QLabel>(*opened.window, "temperatureCaption")->text(), u"°C"_s);
    }

    void theLanguageMenuStoresAtOnce() {
        const Opened opened;
        QString told;
        const auto observation =
            const_cast<NotificationCenter&>(opened.bench.notifications)
                .observe(u"updateLanguage"_s, [&told](const void*) { told = u"told"_s; });
        auto* menu = find<QComboBox>(*opened.window, "languagePopUp");
        menu->setFocus();
        QTest::keyClick(menu, Qt::Key_End);
        QCOMPARE(opened.bench.defaults.text(u"language"_s), u"fr"_s);
        QCOMPARE(told, u"told"_s);
    }
};

int runPreferencesWindowTest(int argc, char** argv) {
    PreferencesWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PreferencesWindowTest.moc"
