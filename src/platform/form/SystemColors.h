#pragma once

#include <QColor>
#include <QString>

namespace sargan {

/// The colours that the program itself gives to texts.
namespace systemcolor {
inline constexpr QColor black{0, 0, 0};
inline constexpr QColor gray{128, 128, 128};
inline constexpr QColor brown{153, 102, 51};
inline constexpr QColor red{255, 0, 0};
inline constexpr QColor blue{0, 0, 255};
inline constexpr QColor green{0, 255, 0};
inline constexpr QColor orange{255, 128, 0};
inline constexpr QColor purple{128, 0, 128};
inline constexpr QColor yellow{255, 255, 0};
inline constexpr QColor white{255, 255, 255};
}  // namespace systemcolor

/// "red" for system red and so on; empty for any other colour, also an invalid one.
QString systemColorName(const QColor& color);
/// System red for "red" and so on; invalid for any other word.
QColor systemColorNamed(const QString& name);

}  // namespace sargan
