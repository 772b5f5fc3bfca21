#pragma once

#include "cli/Suite.h"
#include "platform/desk/Desk.h"
#include "platform/document/DocumentController.h"
#include "settings/RegisteredDefaults.h"

namespace sargan {

/// A desk for tests: a scripted prompt, settings in memory, English texts, the clock at 7 June 2016 14:30.
struct TestDesk {
    ScriptedPrompt prompt;
    UserDefaults defaults;
    Strings strings{Strings::Language::English};
    NotificationCenter notifications;
    PickLists pickLists{defaults};
    Desk desk{prompt,        defaults,  strings,
              notifications, pickLists, Clock(QDateTime(QDate(2016, 6, 7), QTime(14, 30))),
              Log()};
    SaveTypes saveTypes = makeSaveTypes();
    DocumentKinds kinds = makeDocumentKinds(saveTypes);

    TestDesk() { registerDefaults(defaults, pickLists); }

    std::unique_ptr<Carnet> newLogbook() {
        return std::make_unique<Carnet>(kinds.standard(), desk, saveTypes);
    }
};

}  // namespace sargan
