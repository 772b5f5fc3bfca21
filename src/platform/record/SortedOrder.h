#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "platform/record/Slots.h"

namespace sargan {

/// The head of a sort key: for numbers and dates the whole order, for texts that of their first characters.
namespace sorthead {

/// Heads compare as the numbers do; what is no number comes before all others.
inline quint64 of(double value) {
    if (std::isnan(value)) return 1;
    constexpr quint64 sign = quint64(1) << 63;
    const quint64 bits = std::bit_cast<quint64>(value + 0.0);  // both zeros are one
    return bits & sign ? ~bits : bits | sign;
}
inline quint64 of(Int value) {
    return of(double(value));
}
inline quint64 of(Float value) {
    return of(double(value));
}
inline quint64 of(const Date& value) {
    return value.isPresent() ? of(value.seconds()) : 0;
}
/// Of the four characters behind what all texts begin with.
inline quint64 of(const Text& value, qsizetype shared = 0) {
    quint64 head = 0;
    for (qsizetype i = shared; i < shared + 4; ++i)
        head = head << 16 | (i < value.size() ? value.at(i).unicode() : 0);
    return head;
}
inline quint64 of(const Numbers&) {
    return 0;
}  // lists and pictures have no order
inline quint64 of(const Picture&) {
    return 0;
}

}  // namespace sorthead

/// The rows of a list in the order of one field. Numbers and dates go by size, texts by their characters'
/// codes, absent values come before all others. Equal ones keep their order, whichever the direction.
template <class R>
std::vector<qsizetype> sortedOrder(const Records<R>& records, const Field<R>& field, bool ascending) {
    struct Key {
        quint64 head;
        const Text* text;
        qsizetype row;
    };
    std::vector<Key> keys;
    keys.reserve(std::size_t(records.size()));
    qsizetype shared = std::numeric_limits<qsizetype>::max();  // characters that all texts begin with
    for (qsizetype row = 0; row < records.size(); ++row)
        field.visit(*records[row], [&](const auto& value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) {
                keys.push_back({0, &value, row});
                const Text& first = *keys.front().text;
                shared = std::min({shared, first.size(), value.size()});
                shared =
                    std::mismatch(first.begin(), first.begin() + shared, value.begin()).first - first.begin();
            } else {
                keys.push_back({sorthead::of(value), nullptr, row});
            }
        });
    for (Key& key : keys)
        if (key.text) key.head = sorthead::of(*key.text, shared);
    const auto compared = [](const Key& a, const Key& b) {
        if (a.head != b.head) return a.head < b.head ? -1 : 1;
        if (!a.text) return 0;
        if (a.text->isNull() != b.text->isNull()) return a.text->isNull() ? -1 : 1;
        return QStringView(*a.text).compare(QStringView(*b.text));
    };
    std::sort(keys.begin(), keys.end(), [&](const Key& a, const Key& b) {
        const int way = ascending ? compared(a, b) : compared(b, a);
        return way != 0 ? way < 0 : a.row < b.row;
    });
    std::vector<qsizetype> order;
    order.reserve(keys.size());
    for (const Key& key : keys) order.push_back(key.row);
    return order;
}

}  // namespace sargan
