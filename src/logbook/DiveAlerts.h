#pragma once

#include <QList>

#include "platform/desk/Desk.h"

namespace sargan {

/// One alert of the dive form and the numbers of the dives that it was about.
struct DiveAlert {
    QString text;
    QList<int> dives;
};

/// Keeps the dive form's alerts together while many dives are built, so that the person hears each of them
/// once. Takes the place of the prompt for the form alone.
class DiveAlerts : public Prompt {
public:
    /// The dive in the form.
    void setNumber(int number) { _number = number; }
    const QList<DiveAlert>& list() const { return _list; }

    void beep() override {}
    void alert(const QString& text) override;
    int ask(const QString&, const QStringList& buttons) override { return int(buttons.size()) - 1; }
    std::unique_ptr<Progress> startProgress(const QString&) override { return nullptr; }

private:
    QList<DiveAlert> _list;
    int _number = 0;
};

/// The alert with the dives concerned.
QString told(const DiveAlert& alert, const Strings& strings);

/// The same desk with another prompt. Both must outlive it.
Desk deskWithPrompt(const Desk& desk, Prompt& prompt);

}  // namespace sargan
