#include <QTest>

#include "platform/document/DocumentTests.h"
#include "platform/document/History.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class HistoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyHistoryChangesNothing() {
        History<int> history;
        int now = 7;
        QVERIFY(!history.canUndo() && !history.canRedo());
        QVERIFY(history.undoName().isNull() && history.redoName().isNull());
        history.undo(now);
        history.redo(now);
        QCOMPARE(now, 7);
    }

    void undoesAndRedoesInOrder() {
        History<int> history;
        int now = 0;
        for (int next = 1; next <= 3; ++next) {
            history.push(QString::number(next), now);
            now = next;
        }
        QCOMPARE(history.undoName(), u"3"_s);
        history.undo(now);
        QCOMPARE(now, 2);
        QCOMPARE(history.undoName(), u"2"_s);
        QCOMPARE(history.redoName(), u"3"_s);
        history.undo(now);
        history.undo(now);
        QCOMPARE(now, 0);
        QVERIFY(!history.canUndo());
        history.redo(now);
        history.redo(now);
        history.redo(now);
        QCOMPARE(now, 3);
        QVERIFY(!history.canRedo());
    }

    void aNewStepForgetsWhatWasUndone() {
        History<int> history;
        int now = 0;
        history.push(u"a"_s, now);
        now = 1;
        history.undo(now);
        history.push(u"b"_s, now);
        now = 2;
        QVERIFY(!history.canRedo());
        history.undo(now);
        QCOMPARE(now, 0);
        QVERIFY(!history.canUndo());
    }

    void theOldestStepsGoFirst() {
        History<int> history;
        const int most = int(History<int>::maximum);
        int now = 0;
        for (int next = 1; next <= most + 5; ++next) {
            history.push(QString::number(next), now);
            now = next;
        }
        int steps = 0;
        for (; history.canUndo(); ++steps) history.undo(now);
        QCOMPARE(steps, most);
        QCOMPARE(now, 5);
        for (; history.canRedo(); --steps) history.redo(now);
        QCOMPARE(now, most + 5);
        QCOMPARE(steps, 0);
    }

    void clearForgetsBothDirections() {
        History<int> history;
        int now = 0;
        history.push(u"a"_s, now);
        history.push(u"b"_s, now);
        history.undo(now);
        history.clear();
        QVERIFY(!history.canUndo() && !history.canRedo());
    }
};

int runHistoryTest(int argc, char** argv) {
    HistoryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HistoryTest.moc"
