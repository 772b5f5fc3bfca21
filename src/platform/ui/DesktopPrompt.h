#pragma once

#include "platform/desk/Prompt.h"
#include "platform/text/Strings.h"

namespace sargan {

/// The prompt of the desktop: dialogs over the window in front.
class DesktopPrompt : public Prompt {
public:
    explicit DesktopPrompt(const Strings& strings) : _strings(strings) {}

    void beep() override;
    void alert(const QString& text) override;
    void inform(const QString& text) override;
    int ask(const QString& text, const QStringList& buttons) override;
    std::unique_ptr<Progress> startProgress(const QString& what) override;

private:
    void show(int icon, const QString& text);
    const Strings& _strings;
};

}  // namespace sargan
