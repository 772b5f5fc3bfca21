#pragma once

#include "platform/desk/Clock.h"
#include "platform/desk/Log.h"
#include "platform/desk/NotificationCenter.h"
#include "platform/desk/PickLists.h"
#include "platform/desk/Prompt.h"
#include "platform/desk/UserDefaults.h"
#include "platform/text/Strings.h"

namespace sargan {

/// What a document needs from its surroundings, passed by reference; there are no globals. The desktop, the
/// command line and the tests each lay their own desk.
struct Desk {
    Prompt& prompt;
    UserDefaults& defaults;
    Strings& strings;
    NotificationCenter& notifications;
    PickLists& pickLists;
    Clock clock;
    Log log;
};

}  // namespace sargan
