#include "platform/archive/NumberStorage.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace sargan {

using Storage = NumberArray::Storage;

int Storage::cellSize(char kind) {
    switch (kind) {
        case char(NumberKind::Bool):
            return 1;
        case char(NumberKind::Int):
        case char(NumberKind::Float):
            return 4;
        default:
            return 8;
    }
}

quint64 Storage::blockSize(quint64 capacity, char kind) {
    const quint64 each = quint64(cellSize(kind)) + (kind == mixed ? 1 : 0);
    return sizeof(Storage) + capacity * each;
}

Storage* Storage::create(quint32 capacity, char kind) {
    void* block = std::malloc(blockSize(capacity, kind));
    if (!block) throw std::bad_alloc();
    Storage* storage = new (block) Storage;
    storage->kind = kind;
    storage->capacity = capacity;
    return storage;
}

void Storage::release(Storage* storage) noexcept {
    if (!storage || storage->references.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    delete storage->sources;
    std::free(static_cast<void*>(storage));
}

void Storage::reserve(Storage*& storage, quint64 capacity) {
    if (capacity <= storage->capacity) return;
    if (capacity > 0xffffffffU) throw std::bad_alloc();
    void* block = std::realloc(static_cast<void*>(storage), blockSize(capacity, storage->kind));
    if (!block) throw std::bad_alloc();
    storage = static_cast<Storage*>(block);
    const uchar* oldKinds = storage->kinds();
    storage->capacity = quint32(capacity);
    if (storage->kind == mixed) std::memmove(storage->kinds(), oldKinds, storage->size);
}

void Storage::toMixed(Storage*& storage, quint32 capacity) {
    const char oldKind = storage->kind;
    const int oldCell = cellSize(oldKind);
    capacity = qMax(capacity, storage->size);
    void* block = std::realloc(static_cast<void*>(storage), blockSize(capacity, mixed));
    if (!block) throw std::bad_alloc();
    storage = static_cast<Storage*>(block);
    storage->capacity = capacity;
    storage->kind = mixed;
    uchar* data = storage->data();
    for (quint32 i = storage->size; oldCell < 8 && i-- > 0;) {
        quint64 cell = 0;
        std::memcpy(&cell, data + quint64(i) * quint64(oldCell), size_t(oldCell));
        std::memcpy(data + quint64(i) * 8, &cell, 8);
    }
    std::memset(storage->kinds(), oldKind, storage->size);
}

quint64 Storage::bitsAt(qsizetype i) const {
    const int cell = cellSize(kind);
    quint64 bits = 0;
    std::memcpy(&bits, data() + i * cell, size_t(cell));
    return bits;
}

void Storage::put(char numberKind, quint64 bits) {
    const int cell = cellSize(kind);
    std::memcpy(data() + quint64(size) * quint64(cell), &bits, size_t(cell));
    if (kind == mixed) kinds()[size] = uchar(numberKind);
    ++size;
}

quint32 Storage::sourceNumber(const std::shared_ptr<const Archive>& archive) {
    if (!sources) sources = new Sources;
    for (size_t i = sources->size(); i-- > 0;) {
        if ((*sources)[i] == archive) return quint32(i);
    }
    sources->push_back(archive);
    return quint32(sources->size() - 1);
}

NumberArrayBuilder::~NumberArrayBuilder() {
    Storage::release(_storage);
}

void NumberArrayBuilder::append(NumberKind kind, quint64 bits) {
    if (!_storage) _storage = Storage::create(_most, char(kind));
    if (_storage->kind != char(kind) && _storage->kind != Storage::mixed) {
        Storage::toMixed(_storage, _most);
    }
    _storage->put(char(kind), bits);
}

void NumberArrayBuilder::appendKept(const ArchivedObject& object) {
    if (!_storage) _storage = Storage::create(_most, char(NumberKind::Kept));
    const quint64 source = _storage->sourceNumber(object.archive());
    append(NumberKind::Kept, source << 32 | object.index());
}

NumberArray NumberArrayBuilder::take() {
    if (!_storage) return NumberArray::empty();
    Storage* storage = _storage;
    _storage = nullptr;
    return NumberArray(storage);
}

}  // namespace sargan
