#pragma once

#include <map>
#include <memory>

#include "settings/ui/PickListWindow.h"

class QMenu;

namespace sargan {

/// The editors of the pick lists: each window is made when it is first asked for, and kept as long as the
/// program runs.
class PickListWindows {
public:
    explicit PickListWindows(Desk& desk) : _desk(desk) {}

    PickListWindow& show(const PickListEditorSpec& spec);
    /// By menu action ("showLieuWindow") or layout name; null when there is none.
    PickListWindow* show(QStringView name);

    /// Puts an entry for every editor into a menu, each named as its action.
    void fill(QMenu* menu);

private:
    Desk& _desk;
    std::map<const PickListEditorSpec*, std::unique_ptr<PickListWindow>> _windows;
};

}  // namespace sargan
