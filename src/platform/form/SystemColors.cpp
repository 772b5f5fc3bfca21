#include "platform/form/SystemColors.h"

namespace sargan {

QString systemColorName(const QColor& color) {
    static const std::pair<QColor, const char*> names[] = {
        {systemcolor::black, "black"},   {systemcolor::gray, "gray"},     {systemcolor::brown, "brown"},
        {systemcolor::red, "red"},       {systemcolor::blue, "blue"},     {systemcolor::green, "green"},
        {systemcolor::orange, "orange"}, {systemcolor::purple, "purple"}, {systemcolor::yellow, "yellow"},
        {systemcolor::white, "white"},
    };
    for (const auto& [known, name] : names)
        if (color == known) return QLatin1String(name);
    return {};
}

}  // namespace sargan
