#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "platform/record/Record.h"
#include "platform/text/Message.h"

/// Ordinary comparison and plain display of field values.
namespace sargan::registersort {

// An absent value comes before every other; a number that is none before every number.
inline bool isLess(Int a, Int b) {
    return a < b;
}
inline bool isLess(double a, double b) {
    return std::isnan(a) ? !std::isnan(b) : a < b;
}
inline bool isLess(const Text& a, const Text& b) {
    if (a.isNull() || b.isNull()) return a.isNull() && !b.isNull();
    return a.compare(b) < 0;
}
inline bool isLess(const Date& a, const Date& b) {
    if (!a.isPresent() || !b.isPresent()) return !a.isPresent() && b.isPresent();
    return isLess(a.seconds(), b.seconds());
}
inline bool isLess(const Numbers&, const Numbers&) {
    return false;
}
inline bool isLess(const Picture&, const Picture&) {
    return false;
}

inline QString shown(Int value) {
    return QString::number(value);
}
inline QString shown(Float value) {
    return shortest(value);
}
inline QString shown(const Text& value) {
    return value;
}
inline QString shown(const Date& value) {
    return value.local().toString(QStringLiteral("dd/MM/yyyy"));
}
inline QString shown(const Numbers&) {
    return {};
}
inline QString shown(const Picture&) {
    return {};
}

/// The rows 0 … count - 1 in the order of their keys; rows with equal keys keep theirs.
template <class Key>
std::vector<qsizetype> order(qsizetype count, bool ascending, Key key) {
    using Value = std::remove_cvref_t<decltype(key(0))>;
    // A key that is computed is computed once; one that lies in a record is looked at where it lies.
    constexpr bool isComputed = !std::is_reference_v<decltype(key(0))>;
    using Held = std::conditional_t<isComputed, Value, const Value*>;
    std::vector<std::pair<Held, qsizetype>> keyed;
    keyed.reserve(std::size_t(count));
    for (qsizetype row = 0; row < count; ++row) {
        if constexpr (isComputed)
            keyed.emplace_back(key(row), row);
        else
            keyed.emplace_back(&key(row), row);
    }
    const auto value = [](const auto& pair) -> const Value& {
        if constexpr (isComputed)
            return pair.first;
        else
            return *pair.first;
    };
    std::stable_sort(keyed.begin(), keyed.end(), [&](const auto& a, const auto& b) {
        return ascending ? isLess(value(a), value(b)) : isLess(value(b), value(a));
    });
    std::vector<qsizetype> rows;
    rows.reserve(keyed.size());
    for (const auto& pair : keyed) rows.push_back(pair.second);
    return rows;
}

}  // namespace sargan::registersort
