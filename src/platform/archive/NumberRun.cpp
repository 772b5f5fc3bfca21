#include "platform/archive/NumberRun.h"

#include <bit>

namespace sargan {

namespace {

/// The group type "@" of every archive's root, which is its first shared string.
constexpr uchar objectType = 0x92;
/// Bytes that the longest start and value take together, with some to spare for loads of eight bytes.
constexpr qsizetype margin = 40;
constexpr int longestStart = 16;

quint64 maskOf(int bytes) {
    return bytes >= 8 ? ~quint64(0) : (quint64(1) << 8 * qMax(bytes, 0)) - 1;
}

int placeOf(NumberKind kind) {
    return int(ObjectEntry::typeOf(kind)) - int(ObjectEntry::NumberBool);
}

/// The value of a number with an integer of more than one byte; false when it does not fit.
template <typename T>
bool wideValue(const uchar*& at, T& value) {
    switch (*at) {
        case archivetag::int16:
            value = T(loadLittle<qint16>(at + 1));
            at += 3;
            return true;
        case archivetag::int32:
            value = T(loadLittle<qint32>(at + 1));
            at += 5;
            return true;
        case archivetag::int64:
            if (sizeof(T) < 8 && std::is_integral_v<T>) return false;
            value = T(loadLittle<qint64>(at + 1));
            at += 9;
            return true;
        default:
            return false;
    }
}

/// The value of a number of kind T, where nine bytes can be read; false when the general path must look.
template <typename T>
inline bool quickValue(const uchar*& at, T& value) {
    if constexpr (sizeof(T) == 1) {
        value = T(*at++);
        return true;
    }
    if constexpr (std::is_floating_point_v<T>) {
        if (*at == archivetag::real) {
            value = loadLittle<T>(at + 1);
            at += 1 + sizeof(T);
            return true;
        }
    }
    const int bare = signedByte(*at);
    if (bare >= archivetag::leastBareValue) {
        value = T(bare);
        ++at;
        return true;
    }
    return wideValue(at, value);
}

template <typename T>
bool quickBits(const uchar*& at, quint64& bits) {
    T value{};
    if (!quickValue(at, value)) return false;
    bits = 0;
    std::memcpy(&bits, &value, sizeof(T));
    return true;
}

bool quickBits(const uchar*& at, NumberKind kind, quint64& bits) {
    switch (kind) {
        case NumberKind::Bool:
            return quickBits<qint8>(at, bits);
        case NumberKind::Int:
            return quickBits<qint32>(at, bits);
        case NumberKind::LongLong:
            return quickBits<qint64>(at, bits);
        case NumberKind::Float:
            return quickBits<float>(at, bits);
        case NumberKind::Double:
            return quickBits<double>(at, bits);
        case NumberKind::Kept:
            break;
    }
    return false;
}

/// Whether eight bytes are one reference four times, as where a number comes again and again.
bool isFourTimes(quint64 bytes, int length) {
    return length == 2 && bytes == (bytes & 0xffff) * 0x0001000100010001;
}

}  // namespace

/// Where the quick path stands, in registers: the bytes and the end of the object table.
class NumberRun::Window {
public:
    Window(ItemReader& items, quint32 most)
        : at(items.at.at()),
          begin(items.at.begin()),
          end(at + items.at.left()),
          _items(items),
          _entries(
              (items.growing()->objects.reserve(roomFor(items, most)), items.growing()->objects.begin())),
          _newEntry(items.growing()->objects.end()),
          _firstNew(_newEntry) {}
    /// What was passed counts as read.
    ~Window() {
        _items.growing()->objects.grew(quint32(_newEntry - _firstNew));
        _items.at.moveTo(at);
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const uchar* at;
    const uchar* const begin;
    const uchar* const end;

    bool isSafe() const { return end - at >= margin; }
    void addNumber(const Start& start) {
        *_newEntry++ = ObjectEntry::fromBits(quint64(at - begin) + start.entryBits);
    }
    /// The object that a reference group, whose first bytes these are, refers to, and the group's length;
    /// length 0 when it is no reference or not to a number.
    struct Reference {
        ObjectEntry entry;
        int length;
    };
    Reference reference(quint64 bytes) const {
        const uchar head = uchar(bytes >> 8);
        qint64 index = signedByte(head);
        int length = 2;
        if (index < archivetag::leastBareValue) {
            if (head != archivetag::int16 && head != archivetag::int32) return {{}, 0};
            index = head == archivetag::int16 ? qint64(qint16(bytes >> 16)) : qint64(qint32(bytes >> 16));
            length = head == archivetag::int16 ? 4 : 6;
        }
        index -= archivetag::referenceBase;
        if (uchar(bytes) != objectType || quint64(index) >= quint64(_newEntry - _entries)) return {{}, 0};
        const ObjectEntry entry = _entries[index];
        return {entry, entry.isNumber() ? length : 0};
    }

private:
    /// A number in full takes eight bytes at least.
    static quint32 roomFor(const ItemReader& items, quint32 most) {
        return quint32(qMin<qint64>(most, items.at.left() / 8 + 1));
    }

    ItemReader& _items;
    const ObjectEntry* const _entries;
    ObjectEntry* _newEntry;
    ObjectEntry* const _firstNew;
};

void NumberRun::learn(const ObjectHead& number, const uchar* group, quint32 strings) {
    const Archive::Tables& tables = _items.tables();
    const ObjectEntry entry = tables.objects[number.index];
    if (!entry.isNumber() || tables.objects[number.cls].isDerived()) return;
    // Only bytes that made no table entries but the number's own mean the same again.
    if (tables.strings.size() != strings || tables.objects.size() != number.index + 1) return;
    const NumberKind kind = entry.numberKind();
    const int length = int(tables.begin() + entry.valueOffset() - group);
    if (length > longestStart) return;
    uchar bytes[longestStart] = {};
    std::memcpy(bytes, group, size_t(length));
    const int typeLength = int(tables.begin() + number.offset - group);
    Start& start = _starts[size_t(placeOf(kind))];
    start.low = loadLittle<quint64>(bytes);
    start.high = loadLittle<quint64>(bytes + 8);
    start.lowMask = maskOf(length);
    start.highMask = maskOf(length - 8);
    start.entryBits = ObjectEntry::numberBits(kind, length - typeLength) + quint64(typeLength);
    start.length = length;
    start.kind = kind;
}

const NumberRun::Start& NumberRun::startOf(NumberKind kind) const {
    return _starts[size_t(placeOf(kind))];
}

const NumberRun::Start* NumberRun::startAt(const uchar* at) {
    const quint64 first = loadLittle<quint64>(at);
    const quint64 second = loadLittle<quint64>(at + 8);
    for (size_t i = 0; i < _starts.size(); ++i) {
        const size_t place = (_lastStart + i) % _starts.size();
        if (_starts[place].length == 0 || !_starts[place].matches(first, second)) continue;
        _lastStart = place;
        return &_starts[place];
    }
    return nullptr;
}

quint32 NumberRun::take(NumberArrayBuilder& builder, quint32 most) {
    switch (builder.kind()) {
        case NumberArray::Storage::noKind:
            return 0;
        case NumberArray::Storage::mixed:
            return takeMixed(builder, most);
        default:
            break;
    }
    const NumberKind kind = NumberKind(builder.kind());
    if (kind == NumberKind::Kept || startOf(kind).length == 0) return 0;
    switch (kind) {
        case NumberKind::Bool:
            return takePacked<qint8>(builder, most, startOf(kind));
        case NumberKind::Int:
            return takePacked<qint32>(builder, most, startOf(kind));
        case NumberKind::LongLong:
            return takePacked<qint64>(builder, most, startOf(kind));
        case NumberKind::Float:
            return takePacked<float>(builder, most, startOf(kind));
        default:
            return takePacked<double>(builder, most, startOf(kind));
    }
}

template <typename T>
quint32 NumberRun::takePacked(NumberArrayBuilder& builder, quint32 most, const Start& learned) {
    const Start start = learned;
    const ObjectEntry::Type type = ObjectEntry::typeOf(start.kind);
    Window window(_items, most);
    T* out = builder.packedEnd<T>();
    T* const end = out + most;
    while (out < end && window.isSafe()) {
        const quint64 bytes = loadLittle<quint64>(window.at);
        if (start.matches(bytes, loadLittle<quint64>(window.at + 8))) {
            const uchar* next = window.at + start.length;
            if (!quickValue(next, *out) || *next != archivetag::end) break;
            window.addNumber(start);
            window.at = next + 1;
            ++out;
            continue;
        }
        const Window::Reference reference = window.reference(bytes);
        if (reference.length == 0 || reference.entry.type() != type) break;
        const uchar* at = window.begin + reference.entry.valueOffset();
        T value{};
        if (!quickValue(at, value)) break;
        const qsizetype times = isFourTimes(bytes, reference.length) && end - out >= 4 ? 4 : 1;
        out = std::fill_n(out, times, value);
        window.at += times * reference.length;
    }
    const auto taken = out - builder.packedEnd<T>();
    builder.grew(taken);
    return quint32(taken);
}

quint32 NumberRun::takeMixed(NumberArrayBuilder& builder, quint32 most) {
    Window window(_items, most);
    quint64* cells = builder.cellsEnd();
    uchar* kinds = builder.kindsEnd();
    quint32 taken = 0;
    for (; taken < most && window.isSafe(); ++taken) {
        if (const Start* const start = startAt(window.at)) {
            const uchar* next = window.at + start->length;
            if (!quickBits(next, start->kind, cells[taken]) || *next != archivetag::end) break;
            window.addNumber(*start);
            window.at = next + 1;
            kinds[taken] = uchar(start->kind);
            continue;
        }
        const Window::Reference reference = window.reference(loadLittle<quint64>(window.at));
        if (reference.length == 0) break;
        const uchar* at = window.begin + reference.entry.valueOffset();
        const NumberKind kind = reference.entry.numberKind();
        if (!quickBits(at, kind, cells[taken])) break;
        kinds[taken] = uchar(kind);
        window.at += reference.length;
    }
    builder.grew(taken);
    return taken;
}

quint32 NumberRun::pass(quint32 most) {
    Window window(_items, most);
    quint64 ignored = 0;
    quint32 passed = 0;
    for (; passed < most && window.isSafe(); ++passed) {
        if (const Start* const start = startAt(window.at)) {
            const uchar* next = window.at + start->length;
            if (!quickBits(next, start->kind, ignored) || *next != archivetag::end) break;
            window.addNumber(*start);
            window.at = next + 1;
            continue;
        }
        const Window::Reference reference = window.reference(loadLittle<quint64>(window.at));
        if (reference.length == 0) break;
        window.at += reference.length;
    }
    return passed;
}

}  // namespace sargan
