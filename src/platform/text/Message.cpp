#include "platform/text/Message.h"

#include <charconv>
#include <cmath>
#include <optional>

namespace sargan {

namespace {

struct Placeholder {
    qsizetype begin = 0;
    qsizetype end = 0;  ///< one past its last character
    int width = 0;
    int precision = -1;  ///< none
    QChar conversion;    ///< '%' for an escaped per cent sign, null for a malformed one
};

int readNumber(QStringView format, qsizetype& at) {
    int number = 0;
    while (at < format.size() && format[at].isDigit() && number < 1000)
        number = number * 10 + format[at++].digitValue();
    return number;
}

Placeholder readPlaceholder(QStringView format, qsizetype at) {
    Placeholder found;
    found.begin = at++;
    found.width = readNumber(format, at);
    if (at < format.size() && format[at] == u'.') found.precision = readNumber(format, ++at);
    while (at < format.size() && format[at] == u'l') ++at;
    if (at < format.size() && QStringView(u"diuf@%").contains(format[at])) found.conversion = format[at++];
    found.end = found.conversion.isNull() ? found.begin + 1 : at;
    return found;
}

bool takesArgument(const Placeholder& placeholder) {
    return !placeholder.conversion.isNull() && placeholder.conversion != u'%';
}

QString plain(const FormatArgument& argument) {
    if (auto whole = std::get_if<qint64>(&argument)) return QString::number(*whole);
    if (auto real = std::get_if<double>(&argument)) return shortest(*real);
    if (auto real = std::get_if<float>(&argument)) return shortest(*real);
    return std::get<QString>(argument);
}

/// Rounded as C formats round: exactly, and a tie to the even digit (2.25 gives 2.2 where QString says 2.3).
QString fixedPoint(double value, int precision) {
    std::string digits(400 + std::size_t(precision), '\0');  // the largest double has 309 before the point
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, precision);
    return QString::fromLatin1(digits.data(), end.ptr - digits.data());
}

std::optional<double> realOf(const FormatArgument& argument) {
    if (auto real = std::get_if<double>(&argument)) return *real;
    if (auto real = std::get_if<float>(&argument)) return *real;
    return std::nullopt;
}

QString shown(const Placeholder& placeholder, const FormatArgument& argument) {
    const std::optional<double> real = realOf(argument);
    const bool fixed = placeholder.conversion == u'f' && real && std::isfinite(*real);
    const QString text =
        fixed ? fixedPoint(*real, placeholder.precision < 0 ? 6 : placeholder.precision) : plain(argument);
    return text.rightJustified(placeholder.width);
}

}  // namespace

FormatArgument WholeNumber::argument() const {
    constexpr double limit = 9.2e18;  // within a 64-bit integer, whatever the rounding
    if (std::abs(value) < limit) return qint64(value);
    return value;
}

std::vector<ArgumentKind> placeholdersOf(QStringView format) {
    std::vector<ArgumentKind> kinds;
    for (qsizetype at = 0; (at = format.indexOf(u'%', at)) >= 0;) {
        const Placeholder found = readPlaceholder(format, at);
        if (takesArgument(found))
            kinds.push_back(found.conversion == u'@'   ? ArgumentKind::Text
                            : found.conversion == u'f' ? ArgumentKind::Real
                                                       : ArgumentKind::Whole);
        at = found.end;
    }
    return kinds;
}

QString fillFormat(QStringView format, std::span<const FormatArgument> arguments) {
    QString filled;
    std::size_t next = 0;
    qsizetype at = 0;
    for (qsizetype sign; (sign = format.indexOf(u'%', at)) >= 0;) {
        filled += format.sliced(at, sign - at);
        const Placeholder found = readPlaceholder(format, sign);
        if (found.conversion == u'%')
            filled += u'%';
        else if (takesArgument(found) && next < arguments.size())
            filled += shown(found, arguments[next++]);
        else
            filled += format.sliced(found.begin, found.end - found.begin);
        at = found.end;
    }
    filled += format.sliced(at);
    return filled;
}

namespace {

template <typename Real>
QString shortestOf(Real value) {
    if (std::isnan(value)) return QStringLiteral("nan");
    if (std::isinf(value)) return value < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
    // Written out in full where people write numbers in full, with an exponent beyond.
    const Real size = std::abs(value);
    const bool isPlain = size == 0 || (size >= Real(1e-5) && size < Real(1e15));
    char digits[64];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value,
                                   isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    return QString::fromLatin1(digits, end.ptr - digits);
}

}  // namespace

QString shortest(double value) {
    return shortestOf(value);
}

QString shortest(float value) {
    return shortestOf(value);
}

}  // namespace sargan
