#pragma once

#include "platform/desk/Desk.h"
#include "settings/RegisteredDefaults.h"

/// A desk with settings in memory, as they are after a start; texts are shown as their keys.
struct SettingsBench {
    sargan::ScriptedPrompt prompt;
    sargan::UserDefaults defaults;
    sargan::Strings strings{sargan::Strings::Language::Keys};
    sargan::NotificationCenter notifications;
    sargan::PickLists pickLists{defaults};
    sargan::Desk desk{prompt, defaults, strings, notifications, pickLists, sargan::Clock(), sargan::Log()};

    SettingsBench() { sargan::registerDefaults(defaults, pickLists); }
};
