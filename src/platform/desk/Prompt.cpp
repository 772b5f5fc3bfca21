#include "platform/desk/Prompt.h"

namespace sargan {

namespace {

QString described(ExpectedPrompt::Kind kind, const QString& text) {
    switch (kind) {
        case ExpectedPrompt::Kind::Beep:
            return QStringLiteral("beep");
        case ExpectedPrompt::Kind::Alert:
            return QStringLiteral("alert: ") + text;
        case ExpectedPrompt::Kind::Question:
            return QStringLiteral("question: ") + text;
    }
    return {};
}

class CountingProgress : public Progress {
public:
    explicit CountingProgress(int stopAfter) : _left(stopAfter) {}
    bool advance(double) override {
        if (_left == 0) return false;
        if (_left > 0) --_left;
        return true;
    }

private:
    int _left;
};

}  // namespace

int ScriptedPrompt::happened(ExpectedPrompt::Kind kind, const QString& text) {
    if (_expected.isEmpty()) {
        _failures << QStringLiteral("unexpected ") + described(kind, text);
        return -1;
    }
    const ExpectedPrompt expected = _expected.takeFirst();
    if (expected.kind == kind && expected.text == text) return expected.answer;
    _failures << QStringLiteral("expected %1, got %2")
                     .arg(described(expected.kind, expected.text), described(kind, text));
    return -1;
}

QStringList ScriptedPrompt::finish() {
    for (const ExpectedPrompt& missing : std::as_const(_expected))
        _failures << QStringLiteral("never came: ") + described(missing.kind, missing.text);
    _expected.clear();
    return std::exchange(_failures, {});
}

void ScriptedPrompt::beep() {
    happened(ExpectedPrompt::Kind::Beep, {});
}

void ScriptedPrompt::alert(const QString& text) {
    happened(ExpectedPrompt::Kind::Alert, text);
}

int ScriptedPrompt::ask(const QString& text, const QStringList& buttons) {
    const int answer = happened(ExpectedPrompt::Kind::Question, text);
    return answer >= 0 && answer < buttons.size() ? answer : int(buttons.size()) - 1;
}

std::unique_ptr<Progress> ScriptedPrompt::startProgress(const QString&) {
    return std::make_unique<CountingProgress>(stopProgressAfter);
}

}  // namespace sargan
