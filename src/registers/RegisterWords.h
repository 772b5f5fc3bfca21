#pragma once

#include "platform/desk/Desk.h"
#include "platform/form/Control.h"
#include "platform/record/Record.h"

/// The words and figures that several registers show.
namespace sargan::registerwords {

/// A text of the program's own interface: a column's title, a field's label.
constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}
/// Around a layout item that has no label or unit.
inline constexpr Message<> none{nullptr, nullptr};

inline constexpr Qt::Alignment toLeft = Qt::AlignLeft | Qt::AlignVCenter;
inline constexpr Qt::Alignment toRight = Qt::AlignRight | Qt::AlignVCenter;
inline constexpr Qt::Alignment centred = Qt::AlignCenter;

/// The red of records that ask for attention.
inline const QColor alarmRed = QColor::fromRgbF(1.0F, 0.502F, 0.455F);

inline constexpr Message<> oneCard{"Main", "One card", "\r\rerror ! "};
inline constexpr Message<int> cards{"Main", "Cards", "\r\rerror ! "};

/// The mark of what was done or is there; empty for any value but 1.
QString check(Int value, const Strings& strings);
/// "Yes" for 1, else "No".
QString yesNo(Int value, const Strings& strings);
/// A rating of 0 to 5 as stars; empty for any other value.
QString stars(Int rating, const Strings& strings);
/// A menu's words for a tag; `other` for a tag that the menu lacks.
QString word(std::span<const MenuItem> menu, Int tag, const Strings& strings, const QString& other = {});
/// A rating as its number, "?" for 0.
QString ratingInfo(Int rating);
/// "12.5 m"
QString withUnit(Float value, const char* unit);
/// A number in a format such as "%.1f m", rounded as C does: exactly, a tie to the even digit.
QString formatted(QStringView format, double value);
/// A real as "%d" writes it: cut off towards zero; what no whole number is, as it is.
QString shortestWhole(double value);
/// The share of the time from `from` to `to` that has passed, in per cent; 0 when both are the same moment or
/// one is absent.
double elapsedPercent(const Date& from, const Date& to, const Desk& desk);

/// "-" is -1, what is not known; so is a number below 0.
Float orMinusOne(const QString& text);
QString orDash(Float value);

}  // namespace sargan::registerwords
