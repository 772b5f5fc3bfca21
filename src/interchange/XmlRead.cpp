#include "interchange/XmlRead.h"

#include <charconv>
#include <cstring>
#include <optional>

#include "platform/text/Numbers.h"

namespace sargan::xml {

namespace {

/// The next node in document order that is still inside `top`.
pugi::xml_node nextWithin(pugi::xml_node node, pugi::xml_node top) {
    if (const pugi::xml_node child = node.first_child()) return child;
    while (node != top) {
        if (const pugi::xml_node next = node.next_sibling()) return next;
        node = node.parent();
    }
    return {};
}

/// Months and days that are counted on from a year.
constexpr int farthest = 1'000'000;

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::optional<int> part(pugi::xml_node element, const char* name) {
    const pugi::xml_node found = lastChild(element, name);
    return found ? std::optional(integer(found)) : std::nullopt;
}

QDateTime inLocalTime(QDate date, QTime time) {
    return date.isValid() && date.year() >= 1 && date.year() <= 9999 ? QDateTime(date, time) : QDateTime();
}

}  // namespace

pugi::xml_node lastChild(pugi::xml_node parent, const char* name) {
    for (pugi::xml_node child = parent.last_child(); child; child = child.previous_sibling())
        if (std::strcmp(child.name(), name) == 0) return child;
    return {};
}

bool isNested(pugi::xml_node element) {
    return bool(element.first_child());
}

std::string wholeText(pugi::xml_node element) {
    std::string text;
    for (pugi::xml_node node = element; node; node = nextWithin(node, element)) text += node.value();
    return text;
}

QString text(pugi::xml_node element) {
    const std::string whole = wholeText(element);
    return whole.empty() ? QStringLiteral("") : QString::fromUtf8(whole.data(), qsizetype(whole.size()));
}

namespace {

constexpr double powersOfTen[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7};

/// A number as files have it by the thousand, "-12.25" and not much longer: digits as a whole number over a
/// power of ten, both exact, so that the quotient is the nearest double. Nothing when it is any other.
std::optional<double> shortNumber(const char* text) {
    constexpr int mostDigits = 15, mostDecimals = int(std::size(powersOfTen)) - 1;
    const bool isNegative = *text == '-';
    if (isNegative) ++text;
    const char* const first = text;
    qint64 digits = 0;
    int decimals = 0;
    // Counted while it is read, so that no text can run over.
    const auto take = [&] {
        const char* const start = text;
        for (; isDigit(*text) && text - first <= mostDigits; ++text) digits = digits * 10 + (*text - '0');
        return int(text - start);
    };
    if (take() == 0) return std::nullopt;
    if (*text == '.') {
        ++text;
        decimals = take();
    }
    const bool isWhole = *text == '\0' && text - first <= mostDigits && decimals <= mostDecimals;
    if (!isWhole) return std::nullopt;
    const double value = double(digits) / powersOfTen[decimals];
    return isNegative ? -value : value;
}

}  // namespace

double leadingNumber(const char* text) {
    if (const auto number = shortNumber(text)) return *number;
    return sargan::leadingNumber(QString::fromUtf8(text));
}

double number(pugi::xml_node element) {
    if (!element.first_child()) return leadingNumber(element.value());
    return leadingNumber(wholeText(element).c_str());
}

int integer(pugi::xml_node element) {
    return leadingInteger(text(element));
}

Moment Calendar::day(pugi::xml_node element, const MomentNames& names) {
    const auto year = part(element, names.year);
    const auto month = part(element, names.month);
    const auto day = part(element, names.day);
    if (!year && !month && !day) return {};
    // In months and days from the year on, so that no part can run over.
    if (year && (*year < 1 || *year > 9999)) return {};
    const QDate start(year.value_or(1), 1, 1);
    const auto within = [](std::optional<int> value) {
        return std::clamp(value.value_or(1), -farthest, farthest) - 1;
    };
    const QDate date = start.addMonths(within(month)).addDays(within(day));
    if (date != _lastDay || !date.isValid()) {
        _lastDay = date;
        _midnight = Moment::fromDateTime(inLocalTime(date, QTime(0, 0)));
    }
    return _midnight;
}

Moment Calendar::timeOfDay(pugi::xml_node element, const MomentNames& names) {
    const auto hour = part(element, names.hour);
    const auto minute = part(element, names.minute);
    if (!hour && !minute) return {};
    constexpr qint64 minutesOfDay = 1440;
    const qint64 minutes = qint64(hour.value_or(0)) * 60 + minute.value_or(0);
    const qint64 ofDay = (minutes % minutesOfDay + minutesOfDay) % minutesOfDay;
    _minutes.resize(minutesOfDay);
    Moment& known = _minutes[std::size_t(ofDay)];
    if (!known.isPresent())
        known = Moment::fromDateTime(inLocalTime(QDate(2001, 1, 1), QTime(int(ofDay / 60), int(ofDay % 60))));
    return known;
}

}  // namespace sargan::xml
