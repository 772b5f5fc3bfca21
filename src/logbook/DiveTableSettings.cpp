#include "logbook/DiveTableSettings.h"

#include "platform/form/SystemColors.h"
#include "settings/Colors.h"

namespace sargan {

using namespace Qt::StringLiterals;

DiveTableSettings DiveTableSettings::of(const UserDefaults& defaults) {
    // Where no colour was saved, those that the registered settings mean, and a light green for abroad.
    const QColor foreign = QColor::fromRgbF(0.725F, 1.0F, 0.674F);
    return {
        .usUnits = defaults.boolean(u"us units"_s),
        .displayUnits = defaults.boolean(u"display units"_s),
        .foreignInColor = defaults.boolean(u"foreign in color"_s),
        .countryCode = defaults.text(u"country code"_s),
        .foreignColor = storedColor(defaults, u"foreign color"_s, foreign),
        .mixInColor = defaults.boolean(u"mix in color"_s),
        .nocturnesInColor = defaults.boolean(u"nocturnes in color"_s),
        .colorItem = defaults.boolean(u"color item"_s),
        .colouredTheme = defaults.integer(u"coloured theme"_s),
        .colouredText = defaults.text(u"coloured text"_s),
        .lowTemperatureInColor = defaults.boolean(u"low temperature in color"_s),
        .lowTemperature = defaults.integer(u"low temperature value"_s),
        .lowTemperatureColor = storedColor(defaults, u"low temperature color"_s, systemcolor::blue),
        .depthTimeInColor = defaults.boolean(u"depth time in color"_s),
        .depthColor = storedColor(defaults, u"depth color"_s, systemcolor::blue),
        .timeColor = storedColor(defaults, u"time color"_s, systemcolor::blue),
    };
}

}  // namespace sargan
