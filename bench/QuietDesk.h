#pragma once

#include "cli/Suite.h"

namespace sargan {

/// A prompt that says nothing and agrees to nothing.
class QuietPrompt : public Prompt {
    void beep() override {}
    void alert(const QString&) override {}
    int ask(const QString&, const QStringList& buttons) override { return int(buttons.size()) - 1; }
    std::unique_ptr<Progress> startProgress(const QString&) override { return nullptr; }
};

/// The whole core on a desk that nobody sits at, for benchmarks and fuzzers: settings in memory, a clock that
/// stands still.
struct QuietDesk {
    QuietPrompt prompt;
    UserDefaults defaults;
    Strings strings;
    NotificationCenter notifications;
    PickLists pickLists{defaults};
    Desk desk{prompt,        defaults,  strings,
              notifications, pickLists, Clock(QDateTime(QDate(2016, 6, 7), QTime(14, 30))),
              Log()};
    SaveTypes saveTypes = makeSaveTypes();
    DocumentKinds kinds = makeDocumentKinds(saveTypes);

    std::unique_ptr<Carnet> logbook() { return std::make_unique<Carnet>(kinds.standard(), desk, saveTypes); }
};

}  // namespace sargan
