#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

namespace sargan {

/// A running piece of long work, shown with a way to stop it.
class Progress {
public:
    virtual ~Progress() = default;
    /// Between 0 and 1. Answers false when the person asked to stop.
    virtual bool advance(double share) = 0;
};

/// How the core speaks with the person: it never sees a dialog, a terminal or a test script.
class Prompt {
public:
    virtual ~Prompt() = default;

    virtual void beep() = 0;
    /// One button, "OK".
    virtual void alert(const QString& text) = 0;
    /// The same for what went well.
    virtual void inform(const QString& text) { alert(text); }
    /// The index of the chosen button; the last one when the dialog is closed. Buttons read from the one
    /// that agrees to the one that leaves everything as it is.
    virtual int ask(const QString& text, const QStringList& buttons) = 0;
    virtual std::unique_ptr<Progress> startProgress(const QString& what) = 0;
};

/// What a scripted prompt expects next, and what it then answers.
struct ExpectedPrompt {
    enum class Kind { Beep, Alert, Question } kind;
    QString text;
    int answer = 0;
};

/// The prompt of tests: everything that happens must be the next expected thing, in order. What goes wrong
/// is kept in `failures`; `finish` adds what never came.
class ScriptedPrompt : public Prompt {
public:
    void expectBeep() { _expected.append({ExpectedPrompt::Kind::Beep, {}, 0}); }
    void expectAlert(const QString& text) { _expected.append({ExpectedPrompt::Kind::Alert, text, 0}); }
    void expectQuestion(const QString& text, int answer) {
        _expected.append({ExpectedPrompt::Kind::Question, text, answer});
    }
    /// All failures so far and everything expected that did not come; empty when all went as expected.
    QStringList finish();

    void beep() override;
    void alert(const QString& text) override;
    int ask(const QString& text, const QStringList& buttons) override;
    std::unique_ptr<Progress> startProgress(const QString& what) override;

    /// Advances of any progress after this many answer "stop"; negative: never.
    int stopProgressAfter = -1;

private:
    int happened(ExpectedPrompt::Kind kind, const QString& text);

    QList<ExpectedPrompt> _expected;
    QStringList _failures;
};

}  // namespace sargan
