#include "platform/archive/ByteCursor.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace sargan {

void failArchive(qint64 offset, ArchivePhrase expected, ArchivePhrase found) {
    throw ArchiveError(offset, std::move(expected), std::move(found));
}

ArchivePhrase describeByte(uchar byte) {
    const QString hexadecimal = u"%1"_s.arg(uint(byte), 2, 16, QChar(u'0'));
    switch (byte) {
        case archivetag::int16:
        case archivetag::int32:
        case archivetag::int64:
            return {"an integer (byte %@)"_words, {hexadecimal}};
        case archivetag::real:
            return "a floating-point value (byte 83)"_words;
        case archivetag::newItem:
            return "a new item (byte 84)"_words;
        case archivetag::nil:
            return "nil (byte 85)"_words;
        case archivetag::end:
            return "the end of an object (byte 86)"_words;
        default:
            break;
    }
    const bool reserved = signedByte(byte) < archivetag::leastBareValue;
    return {reserved ? "the reserved byte %@"_words : "the byte %@"_words, {hexadecimal}};
}

void ByteCursor::failAtEnd(ArchiveWords expected) const {
    failArchive(offset(), expected, "the end of the file"_words);
}

QByteArrayView ByteCursor::takeBytes(quint64 count, ArchiveWords expected) {
    if (count > quint64(left())) {
        failArchive(offset(), {"%@ (bytes: %@)"_words, {expected, count}},
                    left() == 0 ? ArchivePhrase("the end of the file"_words)
                                : ArchivePhrase("the end of the file after %@ bytes"_words, {left()}));
    }
    const QByteArrayView bytes(_at, qsizetype(count));
    _at += count;
    return bytes;
}

qint64 ByteCursor::takeWideSigned(uchar head, ArchiveWords expected) {
    switch (head) {
        case archivetag::int16:
            return takeRaw<qint16>(expected);
        case archivetag::int32:
            return takeRaw<qint32>(expected);
        case archivetag::int64:
            return takeRaw<qint64>(expected);
        default:
            failArchive(offset() - 1, expected, describeByte(head));
    }
}

quint64 ByteCursor::takeUnsigned(ArchiveWords expected) {
    const uchar head = take(expected);
    if (signedByte(head) >= archivetag::leastBareValue) return head;
    switch (head) {
        case archivetag::int16:
            return takeRaw<quint16>(expected);
        case archivetag::int32:
            return takeRaw<quint32>(expected);
        case archivetag::int64:
            return takeRaw<quint64>(expected);
        default:
            failArchive(offset() - 1, expected, describeByte(head));
    }
}

qint32 ByteCursor::takeInt32(ArchiveWords expected) {
    const qint64 start = offset();
    const qint64 value = takeSigned(expected);
    if (value != qint32(value)) {
        failArchive(start, {"%@ of 32 bits"_words, {expected}}, value);
    }
    return qint32(value);
}

float ByteCursor::takeFloat() {
    const uchar head = take("a number"_words);
    if (head == archivetag::real) return takeRaw<float>("a number"_words);
    return float(takeSignedAfter(head, "a number"_words));
}

double ByteCursor::takeDouble() {
    const uchar head = take("a number"_words);
    if (head == archivetag::real) return takeRaw<double>("a number"_words);
    return double(takeSignedAfter(head, "a number"_words));
}

}  // namespace sargan
