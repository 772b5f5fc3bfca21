#include "SampleForm.h"
#include "UiTests.h"

using namespace sargan;

namespace {

/// Pictures and colours are chosen in dialogs; they have tests of their own.
bool takesText(ControlKind kind) {
    return kind != ControlKind::Image && kind != ControlKind::Color;
}
/// A colour well's colour is its value.
bool hasTextColour(ControlKind kind) {
    return kind != ControlKind::Color;
}
bool any(ControlKind) {
    return true;
}

}  // namespace

/// Every kind of control, both ways.
class FormViewWalkTest : public QObject {
    Q_OBJECT

    static void everyControl(bool (*wanted)(ControlKind)) {
        QTest::addColumn<int>("control");
        for (int i = 0; i < int(std::size(sampleSpecs)); ++i)
            if (wanted(sampleSpecs[i].kind)) QTest::newRow(sampleSpecs[i].name) << i;
    }

private Q_SLOTS:
    void whatAPersonDoesReachesTheForm_data() { everyControl(&takesText); }
    void whatAPersonDoesReachesTheForm() {
        QFETCH(int, control);
        SampleWindow window;
        const ControlSpec& spec = window.form.spec(control);
        QWidget* widget = window.widget(spec.name);
        QVERIFY(widget);
        for (const int turn : {1, 2}) {
            const QString before = formwalk::held(window.form, control);
            formwalk::operate(widget, spec, turn);
            QCOMPARE(formwalk::held(window.form, control), formwalk::expectedAfter(spec, turn, before));
        }
    }

    void whatTheFormHoldsIsShown_data() { everyControl(&takesText); }
    void whatTheFormHoldsIsShown() {
        QFETCH(int, control);
        SampleWindow window;
        const ControlSpec& spec = window.form.spec(control);
        for (const int turn : {1, 2}) {
            formwalk::put(window.form, control, turn);
            QCOMPARE(formwalk::shown(window.widget(spec.name), spec), formwalk::held(window.form, control));
        }
    }

    void hidingAndDisablingAreShown_data() { everyControl(&any); }
    void hidingAndDisablingAreShown() {
        QFETCH(int, control);
        SampleWindow window;
        QWidget* widget = window.widget(window.form.spec(control).name);
        QVERIFY(widget->isVisible() && widget->isEnabled());
        window.form.setHidden(control, true);
        QVERIFY(!widget->isVisible());
        window.form.setHidden(control, false);
        QVERIFY(widget->isVisible());
        window.form.setEnabled(control, false);
        QVERIFY(!widget->isEnabled());
        window.form.setEnabled(control, true);
        QVERIFY(widget->isEnabled());
    }

    void aColouredControlIsWrittenInThatColour_data() { everyControl(&hasTextColour); }
    void aColouredControlIsWrittenInThatColour() {
        QFETCH(int, control);
        SampleWindow window;
        const ControlSpec& spec = window.form.spec(control);
        QWidget* widget = window.widget(spec.name);
        const QColor usual = widget->palette().color(QPalette::Text);
        window.form.setColor(control, QColor(200, 10, 20));
        QCOMPARE(widget->palette().color(QPalette::Text), QColor(200, 10, 20));
        window.form.setColor(control, QColor());
        QCOMPARE(widget->palette().color(QPalette::Text), usual);
    }

    void aColourCanBeReadOnADarkWindow_data() { everyControl(&hasTextColour); }
    void aColourCanBeReadOnADarkWindow() {
        QFETCH(int, control);
        const QPalette light = QApplication::palette();
        const auto restore = qScopeGuard([&light] { QApplication::setPalette(light); });
        SampleWindow window;
        // Outside of an event loop nobody tells the windows.
        const auto become = [&window](const QPalette& palette) {
            QApplication::setPalette(palette);
            QEvent change(QEvent::PaletteChange);
            QCoreApplication::sendEvent(window.view.get(), &change);
        };
        const QWidget* widget = window.widget(window.form.spec(control).name);
        const auto shown = [widget] { return widget->palette().color(QPalette::Text); };
        window.form.setColor(control, Qt::black);
        QCOMPARE(shown(), QColor(Qt::black));
        become(QColor(48, 50, 54));
        QVERIFY(shown().lightnessF() > 0.6F);
        // A window that is out of view follows when it comes back.
        window.view->hide();
        become(light);
        window.view->show();
        QCOMPARE(shown(), QColor(Qt::black));
    }

    void labelAndUnitGoWithTheirControl() {
        SampleWindow window;
        QWidget* name = window.widget("nameField");
        const auto labels = window.view->findChildren<QLabel*>();
        const auto shownLabels = [&] {
            return std::count_if(labels.begin(), labels.end(),
                                 [](const QLabel* label) { return label->isVisible(); });
        };
        const auto before = shownLabels();
        window.form.setHidden(window.at("nameField"), true);
        QVERIFY(!name->isVisible());
        QCOMPARE(shownLabels(), before - 2);
    }
};

int runFormViewWalkTest(int argc, char** argv) {
    FormViewWalkTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FormViewWalkTest.moc"
