#pragma once

#include <QByteArrayView>
#include <QtEndian>
#include <cstring>

#include "platform/archive/ArchiveError.h"

namespace sargan {

/// The head bytes that are not values themselves.
namespace archivetag {
inline constexpr uchar int16 = 0x81;
inline constexpr uchar int32 = 0x82;
inline constexpr uchar real = 0x83;
inline constexpr uchar newItem = 0x84;
inline constexpr uchar nil = 0x85;
inline constexpr uchar end = 0x86;
inline constexpr uchar int64 = 0x87;
/// Signed head bytes from here to 127 are the value itself.
inline constexpr int leastBareValue = -110;
/// What a reference number adds to the index it means.
inline constexpr int referenceBase = -110;
}  // namespace archivetag

/// A byte as the signed number that it is as a head byte.
constexpr int signedByte(uchar byte) {
    return byte < 0x80 ? int(byte) : int(byte) - 0x100;
}

/// Throws an ArchiveError that says what was expected at `offset` and what was found there.
[[noreturn]] void failArchive(qint64 offset, ArchivePhrase expected, ArchivePhrase found);
/// How a message names a byte that stands where it must not.
ArchivePhrase describeByte(uchar byte);

template <typename T>
T loadLittle(const uchar* at) {
    return qFromLittleEndian<T>(at);
}

/// A position in the bytes of an archive; every read is checked against the end.
class ByteCursor {
public:
    ByteCursor() = default;
    ByteCursor(const uchar* begin, const uchar* end, qint64 offset = 0)
        : _begin(begin), _at(begin + offset), _end(end) {}

    qint64 offset() const { return _at - _begin; }
    qint64 left() const { return _end - _at; }
    const uchar* at() const { return _at; }
    const uchar* begin() const { return _begin; }
    /// `at` must lie between the current place and the end.
    void moveTo(const uchar* at) { _at = at; }

    /// `expected` completes the sentence of an error at the end of the file.
    uchar peek(ArchiveWords expected) const {
        if (_at == _end) failAtEnd(expected);
        return *_at;
    }
    uchar take(ArchiveWords expected) {
        const uchar byte = peek(expected);
        ++_at;
        return byte;
    }
    QByteArrayView takeBytes(quint64 count, ArchiveWords expected);

    /// An integer of any width, sign-extended.
    qint64 takeSigned(ArchiveWords expected) { return takeSignedAfter(take(expected), expected); }
    /// The same when its head byte has been taken.
    qint64 takeSignedAfter(uchar head, ArchiveWords expected) {
        if (signedByte(head) >= archivetag::leastBareValue) return signedByte(head);
        return takeWideSigned(head, expected);
    }
    /// An integer of any width, zero-extended.
    quint64 takeUnsigned(ArchiveWords expected);
    qint32 takeInt32(ArchiveWords expected);
    float takeFloat();
    double takeDouble();

private:
    [[noreturn]] void failAtEnd(ArchiveWords expected) const;
    qint64 takeWideSigned(uchar head, ArchiveWords expected);

    template <typename T>
    T takeRaw(ArchiveWords expected) {
        const T value = loadLittle<T>(reinterpret_cast<const uchar*>(takeBytes(sizeof(T), expected).data()));
        return value;
    }

    const uchar* _begin = nullptr;
    const uchar* _at = nullptr;
    const uchar* _end = nullptr;
};

}  // namespace sargan
