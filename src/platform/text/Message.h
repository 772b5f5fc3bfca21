#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <span>
#include <type_traits>
#include <variant>

namespace sargan {

/// One argument of a localised format.
using FormatArgument = std::variant<qint64, float, double, QString>;

/// What a message takes at one place: `%d` a whole number, `%f` a real, `%@` anything.
enum class ArgumentKind : char { Whole = 'd', Real = 'f', Text = '@' };

/// The placeholders of a format, in order. Malformed ones (`%y`, a lone `%` at the end) count as text.
std::vector<ArgumentKind> placeholdersOf(QStringView format);

/// Fills `%d %i %ld %3d %u`, `%f %.1f`, `%@` and `%%` with the arguments in order. It never reads past its
/// arguments: a placeholder without one stays as it stands; one of another kind is shown in the way that
/// kind is shown by `%@`. Whole numbers plain, reals in the shortest form that reads back the same.
QString fillFormat(QStringView format, std::span<const FormatArgument> arguments);

/// A number in the shortest decimal form that reads back the same: "12.3", "4", "nan", "-inf".
QString shortest(double value);
QString shortest(float value);

/// A real that a message takes as a whole number. What no whole number is, is shown as it stands: "inf".
struct WholeNumber {
    double value;
    /// Cut off towards zero.
    FormatArgument argument() const;
};

template <typename T>
constexpr ArgumentKind argumentKindOf() {
    if constexpr (std::is_integral_v<T> || std::is_same_v<T, WholeNumber>) return ArgumentKind::Whole;
    if constexpr (std::is_floating_point_v<T>) return ArgumentKind::Real;
    return ArgumentKind::Text;
}

/// A localised text by table, key and fallback, together with the kinds of the arguments it takes, so that
/// a wrong argument does not compile and a catalogue entry that does not fit is found by a test.
template <typename... Arguments>
struct Message {
    const char* table;
    const char* key;
    const char* fallback = "error !";

    static constexpr std::array<ArgumentKind, sizeof...(Arguments)> argumentKinds() {
        return {argumentKindOf<Arguments>()...};
    }
};

}  // namespace sargan
