#pragma once

#include "platform/desk/Desk.h"

namespace sargan {

/// Menu commands that belong to no document.
class AppDelegate {
public:
    explicit AppDelegate(Desk& desk) : _desk(desk) {}

    /// Every open logbook offers to renumber its dives.
    void sendRenumDivesNotification(const void* sender);

private:
    Desk& _desk;
};

}  // namespace sargan
