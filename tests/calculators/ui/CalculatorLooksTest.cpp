#include <QApplication>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "CalculatorUiTests.h"
#include "WindowBench.h"
#include "platform/ui/FormView.h"

using namespace sargan;
using namespace Qt::StringLiterals;

/// Colours, marks and room: what a person sees of the windows.
class CalculatorLooksTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dangerousRowsAreMarkedBesideTheirColour() {
        WindowBench bench;
        bench.open("SCR Flow Calc");
        bench.type("idEanxField", u"50"_s);
        bench.type("idRealFracO2Field", u"30"_s);
        bench.press(Qt::Key_Return);
        auto* red = bench.find<QLabel>("d08Field");
        auto* black = bench.find<QLabel>("d10Field");
        QCOMPARE(red->palette().color(QPalette::WindowText), QColor(Qt::red));
        QVERIFY(red->font().bold());
        QVERIFY(bench.find<QLabel>("d08FieldMark")->isVisible());
        QCOMPARE(bench.shown("d08FieldMark"), u"⚠ outside the limits"_s);
        QVERIFY(!black->font().bold());
        QVERIFY(!bench.window->findChild<QLabel*>(u"d10FieldMark"_s));
        bench.type("idEanxField", u"40"_s);  // 0.8 x 0.7/0.1 = 5.6
        bench.press(Qt::Key_Return);
        QVERIFY(!red->font().bold());
        QVERIFY(!bench.find<QLabel>("d08FieldMark")->isVisible());
    }

    void theCalculationHasItsColours() {
        WindowBench bench;
        CalculatorWindow& window = bench.open("Gps");
        bench.type("latitude_in_degreeField", u"43"_s);
        bench.press(Qt::Key_Return);
        const auto headings = [&] { return bench.shown("gpsDataField").count(u"color:#0000ff"_s); };
        QCOMPARE(headings(), 2);
        window.close();
        window.calculator().form().press(u"convertGPS"_s);
        window.bringToFront();
        QCOMPARE(headings(), 2);
    }

    /// Black rows and blue headings would not be seen on a dark window.
    void coloursCanBeReadOnADarkWindow() {
        const QPalette light = QApplication::palette();
        const auto restore = qScopeGuard([&light] { QApplication::setPalette(light); });
        WindowBench flow;
        flow.open("SCR Flow Calc");
        flow.type("idEanxField", u"50"_s);
        flow.type("idRealFracO2Field", u"30"_s);
        flow.press(Qt::Key_Return);
        WindowBench gps;
        gps.open("Gps");
        gps.press(Qt::Key_Return);
        // Outside of an event loop nobody tells the windows.
        const auto become = [&](const QPalette& palette) {
            QApplication::setPalette(palette);
            QEvent change(QEvent::PaletteChange);
            for (WindowBench* bench : {&flow, &gps}) {
                QCoreApplication::sendEvent(&bench->window->view(), &change);
                QCoreApplication::sendEvent(bench->window, &change);
            }
        };
        const auto colorOf = [&flow](const char* row) {
            return flow.find<QLabel>(row)->palette().color(QPalette::WindowText);
        };
        QCOMPARE(colorOf("d10Field"), QColor(Qt::black));

        become(QColor(48, 50, 54));
        QVERIFY(colorOf("d10Field").lightnessF() > 0.6F);
        QVERIFY(colorOf("d08Field").lightnessF() > 0.6F && colorOf("d08Field").hslHue() == 0);
        QTRY_COMPARE(gps.shown("gpsDataField").count(u"<span style=\"color:#"_s), 2);
        QVERIFY(!gps.shown("gpsDataField").contains(u"color:#0000ff"_s));

        become(light);
        QCOMPARE(colorOf("d10Field"), QColor(Qt::black));
        QTRY_COMPARE(gps.shown("gpsDataField").count(u"color:#0000ff"_s), 2);
    }

    void eachWindowShowsAllOfItself_data() {
        QTest::addColumn<QString>("window");
        for (const CalculatorSpec& spec : calculatorSpecs())
            QTest::newRow(spec.layout.name) << QString::fromLatin1(spec.layout.name);
    }
    /// In either language nothing is cut off or needs scrolling, neither at first nor with results.
    void eachWindowShowsAllOfItself() {
        QFETCH(QString, window);
        for (const auto language : {Strings::Language::English, Strings::Language::French}) {
            WindowBench bench(language);
            bench.open(window.toLatin1());
            QTRY_COMPARE(cutOff(*bench.window), QString());
            for (const char* action : bench.window->calculator().spec().actions)
                bench.window->calculator().form().press(QLatin1String(action));
            QTRY_COMPARE(cutOff(*bench.window), QString());
            for (const ControlSpec& control : bench.window->calculator().spec().controls)
                QVERIFY2(bench.window->findChild<QWidget*>(QLatin1String(control.name)), control.name);
            keepPicture(*bench.window, language);
        }
    }

private:
    /// What is too narrow or scrolls; empty when all is in view.
    static QString cutOff(const CalculatorWindow& window) {
        for (const QScrollArea* pane : window.view().findChildren<QScrollArea*>()) {
            const QSize needed = pane->widget()->minimumSizeHint();
            const QSize room = pane->viewport()->size();
            const bool scrolls =
                pane->horizontalScrollBar()->isVisible() || pane->verticalScrollBar()->isVisible();
            if (scrolls || needed.width() > room.width() || needed.height() > room.height())
                return pane->objectName();
        }
        for (const QLabel* label : window.view().findChildren<QLabel*>())
            if (label->isVisible() && label->width() < label->minimumSizeHint().width()) return label->text();
        return {};
    }

    /// For the documentation and for those who want to look: set SARGAN_PICTURES to a folder.
    static void keepPicture(CalculatorWindow& window, Strings::Language language) {
        const QString folder = qEnvironmentVariable("SARGAN_PICTURES");
        if (folder.isEmpty()) return;
        const QString ending = language == Strings::Language::English ? u"-en.png"_s : u"-fr.png"_s;
        QVERIFY(window.grab().save(folder + u'/' + window.objectName() + ending));
    }
};

int runCalculatorLooksTest(int argc, char** argv) {
    CalculatorLooksTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CalculatorLooksTest.moc"
