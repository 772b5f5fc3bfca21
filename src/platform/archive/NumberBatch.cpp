#include "platform/archive/NumberBatch.h"

#include <algorithm>

#include "platform/archive/NumberStorage.h"

namespace sargan {

namespace {

template <typename T>
void copyPacked(const NumberArray& numbers, std::vector<double>& values) {
    const std::span<const T> packed = numbers.packed<T>();
    values.assign(packed.begin(), packed.end());
}

}  // namespace

NumberArray arrayOfFloats(std::span<const float> values) {
    if (values.empty()) return NumberArray::empty();
    NumberArrayBuilder builder(quint32(values.size()));
    builder.append(NumberKind::Float, std::bit_cast<quint32>(values.front()));
    std::copy(values.begin() + 1, values.end(), builder.packedEnd<float>());
    builder.grew(qsizetype(values.size()) - 1);
    return builder.take();
}

void copyNumbers(const NumberArray& numbers, std::vector<double>& values) {
    switch (numbers.commonKind().value_or(NumberKind::Kept)) {
        case NumberKind::Float:
            return copyPacked<float>(numbers, values);
        case NumberKind::Double:
            return copyPacked<double>(numbers, values);
        case NumberKind::Int:
            return copyPacked<qint32>(numbers, values);
        default:
            values.resize(std::size_t(numbers.size()));
            for (qsizetype i = 0; i < numbers.size(); ++i) values[std::size_t(i)] = numbers.at(i);
    }
}

}  // namespace sargan
