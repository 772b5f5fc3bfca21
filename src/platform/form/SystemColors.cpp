#include "platform/form/SystemColors.h"

namespace sargan {

namespace {

constexpr std::pair<QColor, const char*> namedColors[] = {
    {systemcolor::black, "black"},   {systemcolor::gray, "gray"},     {systemcolor::brown, "brown"},
    {systemcolor::red, "red"},       {systemcolor::blue, "blue"},     {systemcolor::green, "green"},
    {systemcolor::orange, "orange"}, {systemcolor::purple, "purple"}, {systemcolor::yellow, "yellow"},
    {systemcolor::white, "white"},
};

}  // namespace

QString systemColorName(const QColor& color) {
    for (const auto& [known, name] : namedColors)
        if (color == known) return QLatin1String(name);
    return {};
}

QColor systemColorNamed(const QString& name) {
    for (const auto& [known, knownName] : namedColors)
        if (name == QLatin1String(knownName)) return known;
    return {};
}

}  // namespace sargan
