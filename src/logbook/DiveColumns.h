#pragma once

#include <Qt>
#include <span>

#include "logbook/Plongee.h"
#include "platform/text/Strings.h"

namespace sargan {

/// One column of the logbook table. Its identifier is the name of the field that it shows.
struct DiveColumn {
    const char* identifier;
    Message<> title;
    int characters;  ///< width that a usual value needs
    Qt::Alignment alignment;
    QString (*text)(const Plongee& dive, const Strings& strings);
};

/// All columns, in their designed order.
std::span<const DiveColumn> diveColumns();

}  // namespace sargan
