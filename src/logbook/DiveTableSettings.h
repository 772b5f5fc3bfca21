#pragma once

#include <QColor>

#include "platform/desk/UserDefaults.h"

namespace sargan {

/// What the user has set for the logbook table, read once for all cells.
struct DiveTableSettings {
    bool usUnits = false;       ///< feet and °F are written behind the values, which are not converted
    bool displayUnits = false;  ///< units behind the values at all

    bool foreignInColor = false;
    QString countryCode;  ///< of the user's own country
    QColor foreignColor;
    bool mixInColor = false;
    bool nocturnesInColor = false;
    bool colorItem = false;
    int colouredTheme = 0;  ///< 0 place, 1 site, else visibility
    QString colouredText;
    bool lowTemperatureInColor = false;
    int lowTemperature = 0;
    QColor lowTemperatureColor;
    bool depthTimeInColor = false;
    QColor depthColor;
    QColor timeColor;

    static DiveTableSettings of(const UserDefaults& defaults);
};

}  // namespace sargan
