#include "settings/ui/PickListWindow.h"

#include <QJsonArray>

#include "SettingsUiTests.h"
#include "platform/ui/ControlBinder.h"
#include "settings/ui/PickListWindows.h"

using namespace sargan;
using namespace settingsui;
using namespace Qt::StringLiterals;

namespace {

struct Opened : SettingsBench {
    PickListWindows windows{desk};
    PickListWindow* window;

    explicit Opened(const QString& action, const QStringList& entries = {}, const QString& key = u"lieux"_s) {
        for (const QString& entry : entries) pickLists.append(key, entry);
        window = windows.show(action);
        if (!window || !QTest::qWaitForWindowActive(window)) qFatal("the window does not become active");
    }
    QListView* table(const char* key = "lieux") const {
        return window->findChild<QListView*>(QLatin1String(key) + u" table"_s);
    }
    QStringList shown(const char* key = "lieux") const {
        QStringList rows;
        for (int row = 0; row < table(key)->model()->rowCount(); ++row)
            rows << table(key)->model()->index(row, 0).data().toString();
        return rows;
    }
    void clickRow(int row, Qt::KeyboardModifiers keys = {}) const {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, keys,
                          table()->visualRect(table()->model()->index(row, 0)).center());
    }
};

}  // namespace

class PickListWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wordsAreTypedAndAddedByReturn() {
        const Opened opened(u"showLieuWindow"_s);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"lieuField"_s);
        for (const auto& place : {u"Nice"_s, u"Brest"_s}) {
            QTest::keyClicks(QApplication::focusWidget(), place);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        QCOMPARE(opened.shown(), QStringList({u"Brest"_s, u"Nice"_s}));
        QCOMPARE(opened.defaults.list(u"lieux"_s), QStringList({u"Brest"_s, u"Nice"_s}));
        QCOMPARE(find<QLabel>(*opened.window, "lieuCountField")->text(), u"Entries|2"_s);
        QCOMPARE(find<QLineEdit>(*opened.window, "lieuField")->text(), u""_s);
    }

    void severalRowsGoAfterOneQuestion() {
        Opened opened(u"showLieuWindow"_s, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        QVERIFY(!find<QPushButton>(*opened.window, "deleteLieu")->isEnabled());
        opened.clickRow(0);
        opened.clickRow(2, Qt::ControlModifier);
        opened.clickRow(3, Qt::ControlModifier);
        opened.prompt.expectBeep();
        opened.prompt.expectQuestion(u"Erase selection"_s, 0);
        click(*opened.window, "deleteLieu");
        QCOMPARE(opened.prompt.finish(), QStringList());
        QCOMPARE(opened.shown(), QStringList({u"b"_s}));
        QCOMPARE(opened.defaults.list(u"lieux"_s), QStringList({u"b"_s}));
        QVERIFY(!find<QPushButton>(*opened.window, "deleteLieu")->isEnabled());
    }

    void theDeleteKeyAsksTooAndCancelKeepsAll() {
        Opened opened(u"showLieuWindow"_s, {u"a"_s, u"b"_s});
        opened.clickRow(1);
        opened.prompt.expectBeep();
        opened.prompt.expectQuestion(u"Erase selection"_s, 1);
        QTest::keyClick(opened.table(), Qt::Key_Delete);
        QCOMPARE(opened.prompt.finish(), QStringList());
        QCOMPARE(opened.shown(), QStringList({u"a"_s, u"b"_s}));
        QCOMPARE(opened.window->controller().selection(0), QList<qsizetype>({1}));
    }

    void aSecondRequestShowsTheSameWindow() {
        Opened opened(u"showLieuWindow"_s);
        type(*opened.window, "lieuField", u"half"_s);
        QCOMPARE(opened.windows.show(u"showLieuWindow"), opened.window);
        QCOMPARE(find<QLineEdit>(*opened.window, "lieuField")->text(), u"half"_s);
        QCOMPARE(opened.windows.show(u"showNoWindow"), nullptr);
    }

    void registerListsAreReadAgainBeforeTheyAreShown() {
        Opened opened(u"showMarquesWindow"_s, {u"in memory"_s}, u"fabricants"_s);
        QCOMPARE(opened.shown("fabricants"), QStringList());
        opened.window->close();
        opened.defaults.store(u"fabricants"_s, QJsonArray({u"stored"_s}));
        opened.windows.show(u"showMarquesWindow");
        QCOMPARE(opened.shown("fabricants"), QStringList({u"stored"_s}));
    }

    void countriesAndCodesStandSideBySide() {
        const Opened opened(u"showPaysWindow"_s);
        type(*opened.window, "countryCodeField", u"FRA"_s);
        click(*opened.window, "addCountryCode");
        QCOMPARE(opened.shown("countryCode"), QStringList({u"FRA"_s}));
        QCOMPARE(opened.shown("pays"), QStringList());
    }

    void thePlaceIsRememberedUnderTheFrameName_data() {
        QTest::addColumn<QString>("frame");
        QTest::newRow("showLieuWindow") << u"ComboLieu"_s;
        QTest::newRow("showSiteWindow") << u"ComboBoxes"_s;
        QTest::newRow("showTankMakerWindow") << u"ComboTankMaker"_s;
    }
    void thePlaceIsRememberedUnderTheFrameName() {
        QFETCH(QString, frame);
        const QString action = QString::fromUtf8(QTest::currentDataTag());
        Opened opened(action);
        opened.window->resize(333, 444);
        opened.window->close();
        QCOMPARE(opened.defaults.value(u"window "_s + frame)[u"width"_s], QJsonValue(333));
        PickListWindows later(opened.desk);
        QCOMPARE(later.show(action)->size(), QSize(333, 444));
    }

    void comboBoxesSeeANewWordAtOnce() {
        const Opened opened(u"showLieuWindow"_s);
        static constexpr ControlSpec specs[] = {
            {.name = "placeField", .kind = ControlKind::Combo, .pickList = "lieux"}};
        Form form{specs};
        QWidget window;
        const FormChoosers choosers;
        const auto binder = makeBinder(form, 0, opened.desk, choosers, &window);
        window.show();
        type(*opened.window, "lieuField", u"Brest"_s);
        QTest::keyClick(find<QLineEdit>(*opened.window, "lieuField"), Qt::Key_Return);
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* combo = qobject_cast<QComboBox*>(binder->widget());
        combo->setFocus();
        combo->showPopup();
        QVERIFY(combo->findText(u"Brest"_s) >= 0);
        combo->hidePopup();
        binder->widget()->disconnect(binder.get());
    }

    void whatAFormAddsIsShownAtOnce() {
        Opened opened(u"showLieuWindow"_s);
        opened.pickLists.append(u"lieux"_s, u"Nice"_s);
        QCOMPARE(opened.shown(), QStringList({u"Nice"_s}));
        QCOMPARE(find<QLabel>(*opened.window, "lieuCountField")->text(), u"Entries|1"_s);
    }

    void theMenuOffersAllSixteen() {
        SettingsBench bench;
        PickListWindows windows(bench.desk);
        QMenu menu;
        windows.fill(&menu);
        QCOMPARE(menu.actions().size(), 16);
        QCOMPARE(menu.actions().first()->objectName(), u"showSacWindow"_s);
        QCOMPARE(menu.actions().last()->objectName(), u"showNaufrageWindow"_s);
    }

    void anotherLanguageIsShownAtOnce() {
        Opened opened(u"showLieuWindow"_s, {u"a"_s});
        type(*opened.window, "lieuField", u"half"_s);
        opened.strings.setLanguage(Strings::Language::French);
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(opened.window, &change);
        QCOMPARE(opened.window->windowTitle(), u"Lieux"_s);
        QCOMPARE(find<QLabel>(*opened.window, "lieuCountField")->text(), u"Éléments : 1"_s);
        QCOMPARE(find<QLineEdit>(*opened.window, "lieuField")->text(), u"half"_s);
        QCOMPARE(opened.shown(), QStringList({u"a"_s}));
    }
};

int runPickListWindowTest(int argc, char** argv) {
    PickListWindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PickListWindowTest.moc"
