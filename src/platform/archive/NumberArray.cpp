#include "platform/archive/NumberArray.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/NumberStorage.h"

namespace sargan {

using Storage = NumberArray::Storage;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

double valueOf(char kind, quint64 bits) {
    switch (NumberKind(kind)) {
        case NumberKind::Bool:
            return qint8(bits);
        case NumberKind::Int:
            return qint32(bits);
        case NumberKind::LongLong:
            return double(qint64(bits));
        case NumberKind::Float:
            return std::bit_cast<float>(quint32(bits));
        case NumberKind::Double:
            return std::bit_cast<double>(bits);
        default:
            return notANumber;
    }
}

template <typename T>
QString shortest(T value) {
    char text[400];
    const auto result = std::to_chars(text, text + sizeof(text), value, std::chars_format::fixed);
    return QString::fromLatin1(text, result.ptr - text);
}

Storage* copyWithRoom(const Storage& original) {
    Storage* copy = Storage::create(original.size + original.size / 2 + 4, original.kind);
    copy->size = original.size;
    std::memcpy(copy->data(), original.data(),
                quint64(original.size) * quint64(Storage::cellSize(original.kind)));
    if (original.kind == Storage::mixed) std::memcpy(copy->kinds(), original.kinds(), original.size);
    if (original.sources) copy->sources = new Storage::Sources(*original.sources);
    return copy;
}

/// Makes the list's block its own, with room for one more number of this kind.
void ownWithRoom(Storage*& storage, char kind) {
    if (!storage || storage->size == 0) {
        Storage::release(std::exchange(storage, nullptr));
        storage = Storage::create(4, kind);
    } else if (storage->references.load(std::memory_order_acquire) != 1) {
        Storage* copy = copyWithRoom(*storage);
        Storage::release(std::exchange(storage, copy));
    }
    if (storage->kind != kind && storage->kind != Storage::mixed) {
        Storage::toMixed(storage, storage->size + storage->size / 2 + 4);
    }
    if (storage->size == storage->capacity) {
        Storage::reserve(storage, quint64(storage->size) + storage->size / 2 + 4);
    }
}

void appendBits(Storage*& storage, NumberKind kind, quint64 bits) {
    ownWithRoom(storage, char(kind));
    storage->put(char(kind), bits);
}

}  // namespace

NumberArray::NumberArray(const NumberArray& other) noexcept : _storage(other._storage) {
    if (_storage) _storage->references.fetch_add(1, std::memory_order_relaxed);
}

NumberArray::NumberArray(NumberArray&& other) noexcept : _storage(std::exchange(other._storage, nullptr)) {}

NumberArray& NumberArray::operator=(NumberArray other) noexcept {
    std::swap(_storage, other._storage);
    return *this;
}

NumberArray::~NumberArray() {
    Storage::release(_storage);
}

NumberArray NumberArray::empty() {
    static const NumberArray shared(Storage::create(0, Storage::noKind));
    return shared;
}

NumberArray NumberArray::ofDoubles(std::span<const double> values) {
    if (values.empty()) return empty();
    NumberArray list(Storage::create(quint32(values.size()), char(NumberKind::Double)));
    for (const double value : values) list.append(value);
    return list;
}

NumberArray NumberArray::ofInts(std::span<const qint32> values) {
    if (values.empty()) return empty();
    NumberArray list(Storage::create(quint32(values.size()), char(NumberKind::Int)));
    for (const qint32 value : values) list.appendInt(value);
    return list;
}

bool NumberArray::isAbsent() const {
    return !_storage;
}

qsizetype NumberArray::size() const {
    return _storage ? qsizetype(_storage->size) : 0;
}

std::optional<NumberKind> NumberArray::commonKind() const {
    if (size() == 0 || _storage->kind == Storage::mixed) return std::nullopt;
    return NumberKind(_storage->kind);
}

NumberKind NumberArray::kindAt(qsizetype i) const {
    Q_ASSERT(i >= 0 && i < size());
    return NumberKind(_storage->kindAt(i));
}

double NumberArray::at(qsizetype i) const {
    Q_ASSERT(i >= 0 && i < size());
    return valueOf(_storage->kindAt(i), _storage->bitsAt(i));
}

qint32 NumberArray::intAt(qsizetype i) const {
    const double value = at(i);
    if (std::isnan(value)) return 0;
    return qint32(std::clamp(value, double(std::numeric_limits<qint32>::min()),
                             double(std::numeric_limits<qint32>::max())));
}

QString NumberArray::textAt(qsizetype i) const {
    const quint64 bits = _storage->bitsAt(i);
    switch (kindAt(i)) {
        case NumberKind::Bool:
            return QString::number(qint8(bits));
        case NumberKind::Int:
            return QString::number(qint32(bits));
        case NumberKind::LongLong:
            return QString::number(qint64(bits));
        case NumberKind::Float:
            return shortest(std::bit_cast<float>(quint32(bits)));
        case NumberKind::Double:
            return shortest(std::bit_cast<double>(bits));
        case NumberKind::Kept:
            break;
    }
    return {};
}

quint64 NumberArray::bitsAt(qsizetype i) const {
    Q_ASSERT(i >= 0 && i < size());
    return _storage->bitsAt(i);
}

ArchivedObject NumberArray::keptAt(qsizetype i) const {
    if (kindAt(i) != NumberKind::Kept) return {};
    const quint64 bits = _storage->bitsAt(i);
    return (*_storage->sources)[bits >> 32]->objectAt(quint32(bits));
}

template <typename T>
std::span<const T> NumberArray::packed() const {
    constexpr NumberKind kind = std::is_same_v<T, qint32>   ? NumberKind::Int
                                : std::is_same_v<T, qint64> ? NumberKind::LongLong
                                : std::is_same_v<T, float>  ? NumberKind::Float
                                : std::is_same_v<T, double> ? NumberKind::Double
                                                            : NumberKind::Bool;
    if (commonKind() != kind) return {};
    if constexpr (std::is_same_v<T, bool>) {
        // An archive may hold other bytes than 0 and 1, which must not be read as bool.
        const uchar* bytes = _storage->data();
        if (std::any_of(bytes, bytes + _storage->size, [](uchar byte) { return byte > 1; })) return {};
    }
    return {reinterpret_cast<const T*>(_storage->data()), _storage->size};
}

template std::span<const bool> NumberArray::packed<bool>() const;
template std::span<const qint32> NumberArray::packed<qint32>() const;
template std::span<const qint64> NumberArray::packed<qint64>() const;
template std::span<const float> NumberArray::packed<float>() const;
template std::span<const double> NumberArray::packed<double>() const;

void NumberArray::append(double value) {
    appendBits(_storage, NumberKind::Double, std::bit_cast<quint64>(value));
}

void NumberArray::appendFloat(float value) {
    appendBits(_storage, NumberKind::Float, std::bit_cast<quint32>(value));
}

void NumberArray::appendInt(qint32 value) {
    appendBits(_storage, NumberKind::Int, quint32(value));
}

void NumberArray::appendLongLong(qint64 value) {
    appendBits(_storage, NumberKind::LongLong, quint64(value));
}

void NumberArray::appendBool(bool value) {
    appendRawBool(value ? 1 : 0);
}

void NumberArray::appendRawBool(qint8 value) {
    appendBits(_storage, NumberKind::Bool, quint8(value));
}

void NumberArray::appendKept(const ArchivedObject& object) {
    ownWithRoom(_storage, char(NumberKind::Kept));
    const quint64 source = _storage->sourceNumber(object.archive());
    _storage->put(char(NumberKind::Kept), source << 32 | object.index());
}

void NumberArray::clear() {
    *this = empty();
}

bool operator==(const NumberArray& a, const NumberArray& b) {
    if (a._storage == b._storage) return true;
    if (a.isAbsent() != b.isAbsent() || a.size() != b.size()) return false;
    const char shared =
        a.isEmpty() || a._storage->kind != b._storage->kind ? Storage::mixed : a._storage->kind;
    if (shared != Storage::mixed && shared != char(NumberKind::Kept)) {
        return std::memcmp(a._storage->data(), b._storage->data(),
                           size_t(a.size()) * size_t(Storage::cellSize(shared))) == 0;
    }
    for (qsizetype i = 0; i < a.size(); ++i) {
        const NumberKind kind = a.kindAt(i);
        if (kind != b.kindAt(i)) return false;
        if (kind == NumberKind::Kept ? a.keptAt(i) != b.keptAt(i)
                                     : a._storage->bitsAt(i) != b._storage->bitsAt(i)) {
            return false;
        }
    }
    return true;
}

}  // namespace sargan
