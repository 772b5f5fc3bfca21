#pragma once

#include <QByteArrayView>
#include <cerrno>
#include <span>

#include "platform/files/FileSystem.h"

namespace sargan {

/// A system call that failed, on its way to the SaveError or ReadError that says what it means.
struct SystemFailure {
    int error;
};

/// Repeats a call that a signal interrupted; bounded, so that a broken driver cannot hang the program.
template <typename Call>
auto uninterrupted(Call call) {
    auto result = call();
    for (int tries = 0; result < 0 && errno == EINTR && tries < 100; ++tries) result = call();
    return result;
}

/// The same, with failure as SystemFailure.
template <typename Call>
auto checked(Call call) {
    const auto result = uninterrupted(call);
    if (result < 0) throw SystemFailure{errno};
    return result;
}

/// An open file or folder, closed with the object.
class Descriptor {
public:
    explicit Descriptor(FileSystem& system, int file = -1) : _system(&system), _file(file) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor&& other) noexcept : _system(other._system), _file(other.take()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;

    int get() const { return _file; }
    explicit operator bool() const { return _file >= 0; }

    void reset();
    /// Closes and throws SystemFailure when the system reports a late write error.
    void close();

private:
    int take();

    FileSystem* _system;
    int _file;
};

/// Opens `path` for reading without ever waiting for the other end of a pipe. Throws SystemFailure.
Descriptor openForReading(FileSystem& system, const char* path);

/// Every byte or SystemFailure.
void writeAll(FileSystem& system, int file, QByteArrayView bytes);

/// From the current position to the end; `consume` is given each piece and says whether to go on. Throws
/// SystemFailure.
template <typename Consume>
void readPieces(FileSystem& system, int file, std::span<char> buffer, Consume consume) {
    for (;;) {
        const ssize_t count = checked([&] { return system.read(file, buffer.data(), buffer.size()); });
        if (count == 0 || !consume(QByteArrayView(buffer.data(), count))) return;
    }
}

}  // namespace sargan
