#include "SettingsUiTests.h"
#include "platform/ui/FormView.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

constexpr MenuItem items[] = {
    {5, {"t", "five"}}, {-1, {"t", "none"}}, {7, {"t", "seven"}}, {8, {"t", "eight"}}};
constexpr ControlSpec specs[] = {
    {.name = "unitMatrix", .kind = ControlKind::PopUp, .menu = items, .spread = true},
    {.name = "nextField", .kind = ControlKind::Text},
};

const WindowLayout layout{"Radio",
                          {"t", "title"},
                          {{"pane",
                            {"t", "pane"},
                            nullptr,
                            {{{}, {{{{.control = "unitMatrix"}}}, {{{.control = "nextField"}}}}}}}}};

/// A window with a pop-up that is shown as radio buttons.
struct RadioWindow {
    SettingsBench bench;
    Form form{specs};
    FormView view{form, layout, bench.desk};
    QList<int> ended;

    RadioWindow() {
        form.setTag(0, 7);
        form.onEndEditing = [this](int control) { ended << control; };
        view.show();
        view.activateWindow();
        if (!QTest::qWaitForWindowActive(&view)) qFatal("the window does not become active");
    }
    QList<QRadioButton*> buttons() const {
        return view.findChild<QWidget*>(u"unitMatrix"_s)->findChildren<QRadioButton*>();
    }
    QStringList checked() const {
        QStringList words;
        for (const QRadioButton* button : buttons())
            if (button->isChecked()) words << button->text();
        return words;
    }
};

}  // namespace

class RadioButtonsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsTheFormsItem() {
        RadioWindow window;
        QCOMPARE(window.buttons().size(), 4);
        QCOMPARE(window.checked(), QStringList({u"seven"_s}));
        window.form.setTag(0, -1);
        QCOMPARE(window.checked(), QStringList({u"none"_s}));
    }

    void aTagThatTheMenuLacksIsNothingAndKept() {
        RadioWindow window;
        window.form.setTag(0, 99);
        QCOMPARE(window.checked(), QStringList());
        QCOMPARE(window.form.tag(0), 99);
        window.form.setTag(0, 5);
        QCOMPARE(window.checked(), QStringList({u"five"_s}));
    }

    void aClickChoosesAndEndsTheEditing() {
        RadioWindow window;
        QTest::mouseClick(window.buttons().at(3), Qt::LeftButton, {},
                          QPoint(8, window.buttons().at(3)->height() / 2));
        QCOMPARE(window.form.tag(0), 8);
        QCOMPARE(window.ended, QList<int>({0}));
        QCOMPARE(window.checked(), QStringList({u"eight"_s}));
    }

    void theKeyboardChoosesWithArrowsAndLeavesWithTab() {
        RadioWindow window;
        window.view.takeFocus();
        QCOMPARE(QApplication::focusWidget(), window.buttons().at(2));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(window.form.tag(0), -1);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"nextField"_s);
    }

    void aLockedFormTakesNoClick() {
        RadioWindow window;
        window.view.setReadOnly(true);
        QTest::mouseClick(window.buttons().at(0), Qt::LeftButton, {},
                          QPoint(8, window.buttons().at(0)->height() / 2));
        QCOMPARE(window.form.tag(0), 7);
    }
};

int runRadioButtonsTest(int argc, char** argv) {
    RadioButtonsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RadioButtonsTest.moc"
