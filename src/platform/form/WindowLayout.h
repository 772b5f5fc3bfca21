#pragma once

#include <QList>
#include <QString>

#include "platform/form/Control.h"

namespace sargan {

/// One thing in a row of a window: a control with the words around it, or a button, or a control with a
/// button behind it that is hidden and disabled together with it.
struct LayoutItem {
    const char* control = nullptr;    ///< a control of the form …
    const char* action = nullptr;     ///< … or a button, by the form's action name
    Message<> label = {nullptr, nullptr};  ///< before a control; on a button or a switch
    Message<> unit = {nullptr, nullptr};   ///< behind a control: "m", "bar"
    int width = 0;                    ///< characters that must fit; 0: as wide as the row allows
    Message<> button = {nullptr, nullptr};  ///< on the button behind a control
};

/// Items side by side. The labels of the first items of a section's rows stand in one column.
struct LayoutRow {
    QList<LayoutItem> items;
};

/// A titled group of rows.
struct LayoutSection {
    Message<> title = {nullptr, nullptr};
    QList<LayoutRow> rows;
    bool startsColumn = false;  ///< stands at the top of a new column of sections
};

/// One pane of a window; a window with several panes switches between them.
struct LayoutPane {
    const char* id;
    Message<> label;
    const char* icon = nullptr;
    QList<LayoutSection> sections;
};

/// A window as data: FormView makes the widgets.
struct WindowLayout {
    const char* name;  ///< under which its place and size are remembered
    Message<> title;
    QList<LayoutPane> panes;
};

}  // namespace sargan
