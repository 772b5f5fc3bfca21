#include "platform/form/ColorText.h"

#include <QStringList>
#include <cmath>

#include "platform/form/SystemColors.h"
#include "platform/text/Message.h"

namespace sargan {

namespace {

constexpr double fullComponent = 65535;

float fewestDigits(quint16 component) {
    const double exact = component / fullComponent;
    for (const double scale : {1.0, 1e1, 1e2, 1e3, 1e4, 1e5}) {
        const double rounded = std::round(exact * scale) / scale;
        if (std::lround(rounded * fullComponent) == component) return float(rounded);
    }
    return float(exact);
}

}  // namespace

ColorComponents componentsOf(const QColor& color) {
    const QRgba64 bits = color.toRgb().rgba64();
    return {fewestDigits(bits.red()), fewestDigits(bits.green()), fewestDigits(bits.blue()),
            fewestDigits(bits.alpha())};
}

QColor colorOf(const ColorComponents& components) {
    return QColor::fromRgbF(components[0], components[1], components[2], components[3]);
}

QString colorText(const ColorComponents& components) {
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(shortest(components[0]), shortest(components[1]), shortest(components[2]),
             shortest(components[3]));
}

std::optional<ColorComponents> componentsFromText(const QString& text) {
    const QString trimmed = text.trimmed();
    if (!trimmed.startsWith(QLatin1String("rgba(")) || !trimmed.endsWith(u')')) return std::nullopt;
    const QStringList parts = trimmed.mid(5, trimmed.size() - 6).split(u',');
    ColorComponents components;
    if (parts.size() != qsizetype(components.size())) return std::nullopt;
    for (std::size_t i = 0; i < components.size(); ++i) {
        bool isNumber = false;
        components[i] = parts[qsizetype(i)].trimmed().toFloat(&isNumber);
        if (!isNumber || !(components[i] >= 0 && components[i] <= 1)) return std::nullopt;
    }
    return components;
}

QColor colorFromText(const QString& text) {
    if (const auto components = componentsFromText(text)) return colorOf(*components);
    const QColor system = systemColorNamed(text);
    return system.isValid() ? system : QColor::fromString(text);
}

}  // namespace sargan
