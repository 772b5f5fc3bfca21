#pragma once

#include "calculators/ui/CalculatorWindows.h"
#include "platform/desk/Desk.h"
#include "settings/ui/PickListWindows.h"

namespace sargan {

/// Menu commands that belong to no document.
class AppDelegate {
public:
    explicit AppDelegate(Desk& desk) : _desk(desk), _calculators(desk), _pickLists(desk) {}

    /// Every open logbook offers to renumber its dives.
    void sendRenumDivesNotification(const void* sender);

    /// The calculators' windows, each made when first asked for and kept from then on.
    CalculatorWindows& calculators() { return _calculators; }

    /// The editors of the pick lists, likewise.
    PickListWindows& pickLists() { return _pickLists; }

private:
    Desk& _desk;
    CalculatorWindows _calculators;
    PickListWindows _pickLists;
};

}  // namespace sargan
