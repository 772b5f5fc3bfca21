#include "LogbookUiTests.h"
#include "logbook/DiveLayout.h"
#include "platform/ui/FormView.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

QStringList controlsOf(const WindowLayout& layout) {
    QStringList names;
    for (const LayoutPane& pane : layout.panes)
        for (const LayoutSection& section : pane.sections)
            for (const LayoutRow& row : section.rows)
                for (const LayoutItem& item : row.items)
                    if (item.control) names << QString::fromLatin1(item.control);
    return names;
}

}  // namespace

class DiveLayoutTest : public QObject {
    Q_OBJECT

    static void everyControl() {
        QTest::addColumn<int>("control");
        int index = 0;
        for (const DiveControl& control : diveControls()) QTest::newRow(control.spec.name) << index++;
    }

private Q_SLOTS:
    void everyControlOfTheDiveFormStandsInOnePaneOnce() {
        QStringList expected;
        for (const DiveControl& control : diveControls()) expected << QString::fromLatin1(control.spec.name);
        QStringList found = controlsOf(diveLayout());
        expected.sort();
        found.sort();
        QCOMPARE(found, expected);
    }

    void thereAreSixPanes() { QCOMPARE(diveLayout().panes.size(), 6); }

    void whatIsTypedIntoTheWidgetReachesTheForm_data() { everyControl(); }
    void whatIsTypedIntoTheWidgetReachesTheForm() {
        QFETCH(int, control);
        TestDesk desk;
        DiveForm form(desk.desk);
        FormView view(form.form(), diveLayout(), desk.desk);
        view.show();
        const ControlSpec& spec = form.form().spec(control);
        auto* widget = view.findChild<QWidget*>(QLatin1String(spec.name));
        QVERIFY(widget);
        for (int pane = 0; pane < view.paneCount() && !widget->isVisible(); ++pane) view.showPane(pane);
        QVERIFY(widget->isVisible());
        const QString before = formwalk::held(form.form(), control);
        formwalk::operate(widget, spec, 2);
        // What is only shown takes no typing.
        const bool isShownOnly = !form.form().state(control).enabled;
        QCOMPARE(formwalk::held(form.form(), control),
                 isShownOnly ? before : formwalk::expectedAfter(spec, 2, before));
    }

    void whatTheFormHoldsIsShownInTheWidget_data() { everyControl(); }
    void whatTheFormHoldsIsShownInTheWidget() {
        QFETCH(int, control);
        TestDesk desk;
        DiveForm form(desk.desk);
        FormView view(form.form(), diveLayout(), desk.desk);
        view.show();
        const ControlSpec& spec = form.form().spec(control);
        const auto* widget = view.findChild<QWidget*>(QLatin1String(spec.name));
        formwalk::put(form.form(), control, 2);
        QCOMPARE(formwalk::shown(widget, spec), formwalk::held(form.form(), control));
    }

    void theGasButtonsArePressed() {
        TestDesk desk;
        DiveForm form(desk.desk);
        FormView view(form.form(), diveLayout(), desk.desk);
        view.show();
        view.showPane(3);
        formwalk::typeInto(view.findChild<QWidget*>(u"o2MixField"_s), u"32"_s);
        QTest::mouseClick(view.findChild<QWidget*>(u"razNitrox"_s), Qt::LeftButton);
        QCOMPARE(view.findChild<QLineEdit*>(u"n2MixField"_s)->text(), u"68"_s);
        QTest::mouseClick(view.findChild<QWidget*>(u"razHeliox"_s), Qt::LeftButton);
        QCOMPARE(view.findChild<QLineEdit*>(u"heMixField"_s)->text(), u"68"_s);
        QTest::mouseClick(view.findChild<QWidget*>(u"razAir"_s), Qt::LeftButton);
        QCOMPARE(view.findChild<QLineEdit*>(u"o2MixField"_s)->text(), u"21"_s);
        QCOMPARE(view.currentPane(), 3);
    }
};

int runDiveLayoutTest(int argc, char** argv) {
    DiveLayoutTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveLayoutTest.moc"
