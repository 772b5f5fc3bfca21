#include <QMenu>
#include <QTest>

#include "CalculatorUiTests.h"
#include "WindowBench.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class CalculatorMenuTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMenuListsEveryCalculatorBySubject() {
        WindowBench bench;
        QWidget parent;
        QMenu* menu = bench.windows.makeMenu(&parent);
        QCOMPARE(menu->title(), u"Calculators"_s);
        QStringList subjects;
        QList<qsizetype> sizes;
        for (const QAction* action : menu->actions()) {
            subjects << action->text();
            sizes << action->menu()->actions().size();
        }
        QCOMPARE(subjects, QStringList({u"Nitrox"_s, u"Trimix"_s, u"Rebreather"_s, u"Conversions"_s}));
        QCOMPARE(sizes, QList<qsizetype>({5, 3, 5, 2}));
    }

    void eachEntryOpensItsWindowOnce_data() {
        QTest::addColumn<QString>("action");
        for (const CalculatorSpec& spec : calculatorSpecs())
            QTest::newRow(spec.action) << QString::fromLatin1(spec.action);
    }
    void eachEntryOpensItsWindowOnce() {
        QFETCH(QString, action);
        WindowBench bench;
        QWidget parent;
        auto* entry = bench.windows.makeMenu(&parent)->findChild<QAction*>(action);
        QVERIFY(entry);
        entry->trigger();
        QList<CalculatorWindow*> open = windowsInView();
        QCOMPARE(open.size(), 1);
        CalculatorWindow* window = open.first();
        QCOMPARE(window->calculator().spec().action, action.toLatin1());
        QVERIFY(window->windowTitle().startsWith(entry->text()));
        window->close();
        QVERIFY(windowsInView().isEmpty());
        entry->trigger();
        QCOMPARE(windowsInView(), QList<CalculatorWindow*>{window});
    }

    void windowsOfOneClassAreWindowsOfTheirOwn() {
        WindowBench bench;
        CalculatorWindow& one = bench.open("Nitrox Prof Max");
        bench.type("fracO2Field", u"32"_s);
        CalculatorWindow& other = bench.open("Nitrox Equivalent Depth");
        QVERIFY(&one != &other);
        QCOMPARE(bench.typed("fracO2Field"), QString());
        QVERIFY(one.isVisible() && other.isVisible());
    }

    void anUnknownNameOpensNothing() {
        WindowBench bench;
        QVERIFY(!bench.windows.display(u"Heliox"));
    }

    void theSizeIsRemembered() {
        WindowBench bench;
        CalculatorWindow& window = bench.open("Trimix");
        window.resize(500, 333);
        window.close();
        CalculatorWindows later(bench.desk);
        QCOMPARE(later.display(u"Trimix")->size(), QSize(500, 333));
    }

private:
    static QList<CalculatorWindow*> windowsInView() {
        QList<CalculatorWindow*> found;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (auto* window = qobject_cast<CalculatorWindow*>(widget); window && window->isVisible())
                found << window;
        return found;
    }
};

int runCalculatorMenuTest(int argc, char** argv) {
    CalculatorMenuTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CalculatorMenuTest.moc"
