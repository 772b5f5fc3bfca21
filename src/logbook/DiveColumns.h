#pragma once

#include <Qt>
#include <span>

#include "logbook/DiveTableSettings.h"
#include "logbook/Plongee.h"
#include "platform/document/TableSource.h"
#include "platform/text/Strings.h"

namespace sargan {

/// One column of the logbook table. Its identifier is the name of the field that it shows and sorts by.
struct DiveColumn {
    const char* identifier;
    const char* visibilityKey;  ///< of the setting that shows or hides it
    bool isDesigned;            ///< whether it is shown while that setting was never stored
    Message<> title;
    int characters;  ///< width that a usual value needs
    Qt::Alignment alignment;
    QString (*text)(const Plongee& dive, const DiveTableSettings& settings, const Strings& strings);
};

/// All columns, in their designed order.
std::span<const DiveColumn> diveColumns();
/// Throws UnknownKeyError for an identifier that no column has.
const DiveColumn& diveColumn(QStringView identifier);

/// A dive's cell under a column, with the colours that the settings give it.
TableCell diveCell(const Plongee& dive, const DiveColumn& column, const DiveTableSettings& settings,
                   const Strings& strings);

}  // namespace sargan
