#include "logbook/DiveColumns.h"
#include "platform/form/SystemColors.h"

// The colours of the logbook table. The rules are applied in the order in which they stand here, and later
// ones override earlier ones. They do not always agree with each other, on purpose: people know their table.

namespace sargan {

namespace {

using Settings = DiveTableSettings;

const QColor nitroxGreen = QColor::fromRgbF(0.0F, 0.7F, 0.0F);
const QColor nightBlue = QColor::fromRgbF(0.0F, 0.0F, 0.3F);
const QColor warm = QColor::fromRgbF(0.98F, 0.466F, 0.373F);

/// From this share on, in per cent, the first decompression gas counts as oxygen.
constexpr int nearlyPureOxygen = 98;

bool isColumn(const DiveColumn& column, const char* identifier) {
    return qstrcmp(column.identifier, identifier) == 0;
}

void paint(TableCell& cell, bool bold, const QColor& background, const QColor& color) {
    cell.bold = bold;
    cell.background = background;
    cell.color = color;
}

void colorForeign(TableCell& cell, const Plongee& dive, const DiveColumn& column, const Settings& settings) {
    if (!settings.foreignInColor || isColumn(column, "epaves") || isColumn(column, "inoubliable")) return;
    cell.background = dive.countryCode() != settings.countryCode ? settings.foreignColor : QColor();
}

void colorNumberByMix(TableCell& cell, const Plongee& dive) {
    const int mix = dive.gaz();
    const int apparatus = dive.rebreather();
    if (mix == 1 && apparatus == 0)
        paint(cell, true, nitroxGreen, systemcolor::yellow);
    else if (mix >= 2 && mix <= 5 && apparatus == 0)
        paint(cell, true, systemcolor::brown, systemcolor::white);
    else if (dive.decoO2_Level_1() >= nearlyPureOxygen)
        paint(cell, true, systemcolor::black, systemcolor::white);
    else if (apparatus == 1)
        paint(cell, true, systemcolor::gray, systemcolor::yellow);
    else if (apparatus >= 2 && apparatus <= 4)
        paint(cell, true, systemcolor::black, systemcolor::yellow);
    else
        paint(cell, true, {}, systemcolor::gray);
}

/// Another order than for the number: the apparatus counts only where there is neither nitrox nor helium.
void colorGasByMix(TableCell& cell, const Plongee& dive) {
    const int mix = dive.gaz();
    const int apparatus = dive.rebreather();
    if (mix == 1)
        paint(cell, true, nitroxGreen, systemcolor::yellow);
    else if (mix >= 2 && mix <= 5)
        paint(cell, true, systemcolor::brown, systemcolor::white);
    else if (apparatus >= 2 && apparatus <= 4)
        paint(cell, true, systemcolor::black, systemcolor::yellow);
    else if (dive.decoO2_Level_1() >= nearlyPureOxygen)
        paint(cell, true, systemcolor::black, systemcolor::white);
    else
        paint(cell, false, {}, systemcolor::gray);
}

void colorMix(TableCell& cell, const Plongee& dive, const DiveColumn& column, const Settings& settings) {
    const bool isNumber = isColumn(column, "noPlongee");
    if (!isNumber && !isColumn(column, "gaz")) return;
    if (settings.mixInColor) {
        isNumber ? colorNumberByMix(cell, dive) : colorGasByMix(cell, dive);
    } else if (!settings.nocturnesInColor) {
        cell.background = QColor();
        cell.color = systemcolor::black;
    }
}

void colorNight(TableCell& cell, const Plongee& dive, const DiveColumn& column, const Settings& settings) {
    if (!settings.nocturnesInColor || !isColumn(column, "visibilite")) return;
    if (dive.nocturne() == 1) {
        cell.background = nightBlue;
        cell.color = systemcolor::white;
    } else {
        cell.background = QColor();
        cell.bold = false;
    }
}

void colorItem(TableCell& cell, const DiveColumn& column, const Settings& settings) {
    const char* theme = settings.colouredTheme == 0   ? "lieu"
                        : settings.colouredTheme == 1 ? "site"
                                                      : "visibilite";
    if (!isColumn(column, theme)) return;
    const bool matches = cell.text == settings.colouredText;
    if (settings.colorItem) {
        cell.bold = matches;
        cell.color = matches ? systemcolor::red : systemcolor::black;
    } else if (matches) {
        cell.bold = false;
        cell.color = systemcolor::gray;
    }
}

void colorWater(TableCell& cell, const Plongee& dive, const DiveColumn& column, const Settings& settings) {
    if (!isColumn(column, "tempEau")) return;
    if (!settings.lowTemperatureInColor)
        cell.color = systemcolor::black;
    else
        cell.color = dive.tempEau() >= settings.lowTemperature ? warm : settings.lowTemperatureColor;
}

void colorDepthAndTime(TableCell& cell, const DiveColumn& column, const Settings& settings) {
    if (!settings.depthTimeInColor) return;
    if (isColumn(column, "profondeur")) cell.color = settings.depthColor;
    if (isColumn(column, "temps")) cell.color = settings.timeColor;
}

}  // namespace

TableCell diveCell(const Plongee& dive, const DiveColumn& column, const Settings& settings,
                   const Strings& strings) {
    TableCell cell{column.text(dive, settings, strings)};
    colorForeign(cell, dive, column, settings);
    colorMix(cell, dive, column, settings);
    colorNight(cell, dive, column, settings);
    colorItem(cell, column, settings);
    colorWater(cell, dive, column, settings);
    colorDepthAndTime(cell, column, settings);
    return cell;
}

}  // namespace sargan
