#include <QTest>

#include "platform/desk/Clock.h"
#include "platform/desk/DeskTests.h"
#include "platform/desk/Log.h"
#include "platform/desk/Prompt.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QStringList twoButtons{u"OK"_s, u"Cancel"_s};

}  // namespace

class PromptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aScriptThatIsFollowedHasNoFailures() {
        ScriptedPrompt prompt;
        prompt.expectBeep();
        prompt.expectQuestion(u"Erase?"_s, 0);
        prompt.expectAlert(u"Done"_s);
        prompt.expectQuestion(u"Again?"_s, 1);
        prompt.beep();
        QCOMPARE(prompt.ask(u"Erase?"_s, twoButtons), 0);
        prompt.alert(u"Done"_s);
        QCOMPARE(prompt.ask(u"Again?"_s, twoButtons), 1);
        QCOMPARE(prompt.finish(), QStringList());
    }

    void whatWasNotExpectedFails() {
        ScriptedPrompt prompt;
        prompt.beep();
        prompt.alert(u"a"_s);
        QCOMPARE(prompt.ask(u"q"_s, twoButtons), 1);
        QCOMPARE(prompt.finish(),
                 QStringList({u"unexpected beep"_s, u"unexpected alert: a"_s, u"unexpected question: q"_s}));
    }

    void whatNeverCameFails() {
        ScriptedPrompt prompt;
        prompt.expectBeep();
        prompt.expectQuestion(u"q"_s, 0);
        QCOMPARE(prompt.finish(), QStringList({u"never came: beep"_s, u"never came: question: q"_s}));
        QCOMPARE(prompt.finish(), QStringList());
    }

    void anotherTextOrKindOrOrderFails() {
        ScriptedPrompt prompt;
        prompt.expectQuestion(u"Erase?"_s, 0);
        QCOMPARE(prompt.ask(u"Delete?"_s, twoButtons), 1);
        prompt.expectAlert(u"x"_s);
        prompt.expectBeep();
        prompt.beep();
        prompt.alert(u"x"_s);
        QCOMPARE(prompt.finish(),
                 QStringList({u"expected question: Erase?, got question: Delete?"_s,
                              u"expected alert: x, got beep"_s, u"expected beep, got alert: x"_s}));
    }

    void anAnswerWithoutButtonIsTheLastOne() {
        ScriptedPrompt prompt;
        prompt.expectQuestion(u"q"_s, 7);
        prompt.expectQuestion(u"q"_s, -3);
        QCOMPARE(prompt.ask(u"q"_s, twoButtons), 1);
        QCOMPARE(prompt.ask(u"q"_s, {u"a"_s, u"b"_s, u"c"_s}), 2);
        QCOMPARE(prompt.finish(), QStringList());
    }

    void progressGoesOnOrStopsWhenScripted() {
        ScriptedPrompt prompt;
        const auto endless = prompt.startProgress(u"x"_s);
        for (int i = 0; i < 100; ++i) QVERIFY(endless->advance(i / 100.0));
        prompt.stopProgressAfter = 2;
        const auto stopped = prompt.startProgress(u"x"_s);
        QVERIFY(stopped->advance(0));
        QVERIFY(stopped->advance(0.5));
        QVERIFY(!stopped->advance(1));
        QVERIFY(!stopped->advance(1));
    }

    void aSetClockStandsStill() {
        const QDateTime time(QDate(2016, 6, 7), QTime(14, 30));
        QCOMPARE(Clock(time).now(), time);
        const QDateTime before = QDateTime::currentDateTime();
        const QDateTime now = Clock().now();
        QVERIFY(before <= now && now <= QDateTime::currentDateTime());
    }

    void theLogHandsItsLinesOn() {
        QStringList lines;
        const Log log([&](const QString& line) { lines << line; });
        log.line(u"CARNET"_s);
        log.line(u"TXT"_s);
        QCOMPARE(lines, QStringList({u"CARNET"_s, u"TXT"_s}));
        Log().line(u"nowhere"_s);
    }
};

int runPromptTest(int argc, char** argv) {
    PromptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PromptTest.moc"
