#pragma once

#include "logbook/DiveColumns.h"

/// Cells of the logbook's table, each of a dive and settings that differ from plain ones by a little.
namespace divecells {

using namespace sargan;

using Change = std::function<void(Plongee&)>;
using Setting = std::function<void(DiveTableSettings&)>;

inline const QColor foreign = QColor::fromRgbF(0.725F, 1.0F, 0.674F);
inline const QColor cold(1, 2, 3);
inline const QColor depthColor(4, 5, 6);
inline const QColor timeColor(7, 8, 9);

/// Nothing in colour, but colours at hand for when a test turns something on.
inline DiveTableSettings plainSettings() {
    DiveTableSettings settings;
    settings.displayUnits = true;
    settings.countryCode = QStringLiteral("FRA");
    settings.foreignColor = foreign;
    settings.lowTemperatureColor = cold;
    settings.depthColor = depthColor;
    settings.timeColor = timeColor;
    settings.colouredText = QStringLiteral("no such place");
    return settings;
}

inline TableCell cellOf(const char* column, const Change& change, const Setting& setting = {}) {
    static const Strings strings;
    Plongee dive;
    dive.setCountryCode(QStringLiteral("FRA"));
    if (change) change(dive);
    DiveTableSettings settings = plainSettings();
    if (setting) setting(settings);
    return diveCell(dive, diveColumn(QString::fromLatin1(column)), settings, strings);
}

}  // namespace divecells
