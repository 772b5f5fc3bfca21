#pragma once

#include <cstdio>

#include "platform/desk/Prompt.h"

namespace sargan {

/// The prompt of the command line: what happens is printed on standard error in order; every question gets
/// the same answer, chosen when the command was started.
class TerminalPrompt : public Prompt {
public:
    explicit TerminalPrompt(bool agree) : _agree(agree) {}

    void beep() override { std::fputs("beep\n", stderr); }
    void alert(const QString& text) override { print("alert: ", text); }
    int ask(const QString& text, const QStringList& buttons) override {
        print("question: ", text);
        return _agree ? 0 : int(buttons.size()) - 1;
    }
    std::unique_ptr<Progress> startProgress(const QString&) override {
        struct Silent : Progress {
            bool advance(double) override { return true; }
        };
        return std::make_unique<Silent>();
    }

private:
    static void print(const char* kind, const QString& text) {
        std::fprintf(stderr, "%s%s\n", kind, text.toUtf8().constData());
    }

    bool _agree;
};

}  // namespace sargan
