#pragma once

#include "platform/document/Toolbar.h"
#include "registers/Register.h"

namespace sargan {

/// How an item of the toolbars looks.
struct ToolbarLook {
    Message<> label;
    const char* icon;
    Message<> tip;
};

struct ToolbarItem {
    const char* identifier;
    ToolbarLook look;
};

/// The items that a toolbar shows, in order. An identifier that nothing is made for stays out.
QList<ToolbarItem> toolbarItems(const RegisterDesign& design, const RegisterToolbar& bar);

/// The toolbars of the register's list and of its form, as they stand now.
QList<ToolbarState> registerToolbars(const Register& shown);

/// Whether an item is enabled now: while there are records, or while the pick list that the register looks at
/// has entries.
bool validateToolbarItem(const Register& shown, const char* identifier);

}  // namespace sargan
