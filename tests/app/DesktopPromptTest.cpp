#include "AppTests.h"
#include "platform/ui/DesktopPrompt.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

/// Presses a button of the message box that comes up next, or closes it with Escape where no button is named.
void answerNextBox(const QString& button, QString* text = nullptr) {
    QTimer::singleShot(0, [button, text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return answerNextBox(button, text);
        if (text) *text = box->text();
        if (button.isEmpty()) return QTest::keyClick(box, Qt::Key_Escape);
        for (QAbstractButton* offered : box->buttons())
            if (offered->text() == button) return QTest::mouseClick(offered, Qt::LeftButton);
        box->reject();
    });
}

}  // namespace

class DesktopPromptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theChosenButtonIsAnswered_data() {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("answer");
        QTest::newRow("first") << u"Save"_s << 0;
        QTest::newRow("second") << u"Lose"_s << 1;
        QTest::newRow("last") << u"Stay"_s << 2;
        QTest::newRow("escape") << QString() << 2;
    }
    void theChosenButtonIsAnswered() {
        QFETCH(QString, button);
        QFETCH(int, answer);
        const Strings strings;
        DesktopPrompt prompt(strings);
        QString shown;
        answerNextBox(button, &shown);
        QCOMPARE(prompt.ask(u"Save <b>it</b>?"_s, {u"Save"_s, u"Lose"_s, u"Stay"_s}), answer);
        QCOMPARE(shown, u"Save <b>it</b>?"_s);
    }

    void anAlertHasOneButton() {
        const Strings strings;
        DesktopPrompt prompt(strings);
        QString shown;
        answerNextBox(u"OK"_s, &shown);
        prompt.alert(u"That did not work."_s);
        QCOMPARE(shown, u"That did not work."_s);
    }

    void progressCanBeStopped() {
        const Strings strings;
        DesktopPrompt prompt(strings);
        const auto progress = prompt.startProgress(u"Importing"_s);
        QVERIFY(progress->advance(0.1));
        QProgressDialog* dialog = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<QProgressDialog*>(window)) dialog = found;
        QVERIFY(dialog);
        dialog->cancel();
        QVERIFY(!progress->advance(0.2));
    }
};

int runDesktopPromptTest(int argc, char** argv) {
    DesktopPromptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DesktopPromptTest.moc"
