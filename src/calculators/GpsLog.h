#pragma once

#include "calculators/Datum.h"
#include "platform/desk/Log.h"
#include "platform/form/Control.h"

namespace sargan {

/// The steps of a conversion for those who want to follow it, line by line; headings in blue.
QList<TextRun> conversionLog(const datum::Ed50Place& place, const datum::Conversion& conversion);

/// The steps of a shift as lines of the system log.
void logShift(const Log& log, const datum::Place& place, datum::Direction direction,
              const datum::Shift& shift);

}  // namespace sargan
