#pragma once

#include <QList>
#include <QString>

#include "platform/text/Message.h"

namespace sargan {

/// One item of a document's toolbar, as it stands now.
struct ToolbarItemState {
    QString identifier;
    Message<> label;
    bool enabled;
};

/// One of a document's toolbars, without a display.
struct ToolbarState {
    QString identifier;
    QList<ToolbarItemState> items;
};

}  // namespace sargan
