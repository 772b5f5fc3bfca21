#pragma once

#include <QRandomGenerator>

#include "platform/record/Slots.h"

/// Random values for the fields of any record class, the same for the same seed.
namespace randomrecord {

inline sargan::Text text(QRandomGenerator& random) {
    static const QString letters = QStringLiteral("abcé ’-,.;\n\"1🐟");
    if (random.bounded(5) == 0) return {};
    sargan::Text text = QLatin1String("");
    for (int length = random.bounded(30); length > 0; --length) text += letters[random.bounded(10)];
    return text;
}

inline void fill(QRandomGenerator& random, sargan::Int& value) {
    value = sargan::Int(random.generate()) >> random.bounded(31);
}
inline void fill(QRandomGenerator& random, sargan::Float& value) {
    value = float(random.bounded(200000) - 100000) / float(1 + random.bounded(1000));
}
inline void fill(QRandomGenerator& random, sargan::Text& value) {
    value = text(random);
}
inline void fill(QRandomGenerator& random, sargan::Date& value) {
    if (random.bounded(5) != 0) value = sargan::Moment::fromSeconds(random.bounded(1000000000) / 7.0);
}
inline void fill(QRandomGenerator&, sargan::Numbers&) {}
inline void fill(QRandomGenerator& random, sargan::Picture& value) {
    if (random.bounded(3) == 0) return;
    value.bytes = QByteArray("\x89PNG\r\n\x1a\n");
    for (int i = random.bounded(40); i > 0; --i) value.bytes.append(char(random.bounded(256)));
}

/// A record whose archived fields have any values.
template <class R>
R make(const sargan::RecordClass<R>& cls, QRandomGenerator& random) {
    R record;
    for (const sargan::Field<R>* field : cls.fields)
        if (cls.archives(*field)) field->visit(record, [&](auto& value) { fill(random, value); });
    return record;
}

}  // namespace randomrecord
