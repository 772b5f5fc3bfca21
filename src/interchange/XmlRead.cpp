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

double leadingNumber(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && std::strchr(" \t\r\n", text[at]) && text[at]) ++at;
    std::size_t end = at + (at < text.size() && text[at] == '-' ? 1 : 0);
    const std::size_t digits = end;
    while (end < text.size() && isDigit(text[end])) ++end;
    if (end > digits && end < text.size() && text[end] == '.')
        for (++end; end < text.size() && isDigit(text[end]);) ++end;
    const bool isPlain = end > digits && (end == text.size() || !std::strchr(",eE", text[end]));
    if (!isPlain) return sargan::leadingNumber(QString::fromUtf8(text.data(), qsizetype(text.size())));
    double value = 0;
    const auto result = std::from_chars(text.data() + at, text.data() + end, value);
    if (result.ec == std::errc()) return value;
    return sargan::leadingNumber(QString::fromUtf8(text.data(), qsizetype(text.size())));
}

double number(pugi::xml_node element) {
    if (!element.first_child()) return leadingNumber(element.value());
    return leadingNumber(wholeText(element));
}

int integer(pugi::xml_node element) {
    return leadingInteger(text(element));
}

Moment day(pugi::xml_node element, const MomentNames& names) {
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
    return Moment::fromDateTime(
        inLocalTime(start.addMonths(within(month)).addDays(within(day)), QTime(0, 0)));
}

Moment timeOfDay(pugi::xml_node element, const MomentNames& names) {
    const auto hour = part(element, names.hour);
    const auto minute = part(element, names.minute);
    if (!hour && !minute) return {};
    constexpr qint64 minutesOfDay = 24 * 60;
    const qint64 minutes = qint64(hour.value_or(0)) * 60 + minute.value_or(0);
    const qint64 ofDay = (minutes % minutesOfDay + minutesOfDay) % minutesOfDay;
    return Moment::fromDateTime(inLocalTime(QDate(2001, 1, 1), QTime(int(ofDay / 60), int(ofDay % 60))));
}

}  // namespace sargan::xml
