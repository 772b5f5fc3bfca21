#include "platform/files/Descriptor.h"

#include <fcntl.h>

#include <algorithm>
#include <utility>

namespace sargan {

namespace {

// Small enough that a failing disk is noticed early, large enough that the number of calls costs nothing.
constexpr qsizetype writePiece = qsizetype{4} << 20;

}  // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    if (this != &other) {
        reset();
        _system = other._system;
        _file = other.take();
    }
    return *this;
}

int Descriptor::take() {
    return std::exchange(_file, -1);
}

void Descriptor::reset() {
    if (_file >= 0) _system->close(take());
}

void Descriptor::close() {
    // Not repeated after EINTR: the descriptor is gone all the same, and its number may be in use again.
    if (_file >= 0 && _system->close(take()) < 0 && errno != EINTR) throw SystemFailure{errno};
}

Descriptor openForReading(FileSystem& system, const char* path) {
    const int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY;
    return Descriptor(system, checked([&] { return system.open(path, flags); }));
}

void writeAll(FileSystem& system, int file, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const QByteArrayView piece = bytes.first(std::min(bytes.size(), writePiece));
        const ssize_t count =
            checked([&] { return system.write(file, piece.data(), static_cast<size_t>(piece.size())); });
        if (count == 0) throw SystemFailure{EIO};
        bytes = bytes.sliced(count);
    }
}

}  // namespace sargan
