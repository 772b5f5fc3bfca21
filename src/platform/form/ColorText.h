#pragma once

#include <QColor>
#include <QString>
#include <array>
#include <optional>

namespace sargan {

/// Red, green, blue and alpha, each from 0 to 1.
using ColorComponents = std::array<float, 4>;

/// A colour's components. QColor keeps 16 bits of each, so what was set as 0.725 comes back as 0.7250019;
/// these are the numbers with the fewest digits that mean the same colour: 0.725.
ColorComponents componentsOf(const QColor& color);
QColor colorOf(const ColorComponents& components);

/// "rgba(0.725, 1, 0.674, 1)".
QString colorText(const ColorComponents& components);

/// The components of "rgba(r, g, b, a)"; none for any other text and for numbers outside 0 to 1.
std::optional<ColorComponents> componentsFromText(const QString& text);

/// A colour written as "rgba(r, g, b, a)", as a system colour's plain name, as "#rrggbb" or as another usual
/// name; invalid for any other text.
QColor colorFromText(const QString& text);

}  // namespace sargan
