#include "platform/archive/ByteCursor.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace sargan {

void failArchive(qint64 offset, const QString& expected, const QString& found) {
    throw ArchiveError(offset, u"expected %1, found %2"_s.arg(expected, found));
}

void failArchive(qint64 offset, const char* expected, const QString& found) {
    failArchive(offset, QString::fromLatin1(expected), found);
}

QString describeByte(uchar byte) {
    switch (byte) {
        case archivetag::int16:
        case archivetag::int32:
        case archivetag::int64:
            return u"an integer (byte %1)"_s.arg(uint(byte), 2, 16, QChar(u'0'));
        case archivetag::real:
            return u"a floating-point value (byte 83)"_s;
        case archivetag::newItem:
            return u"a new item (byte 84)"_s;
        case archivetag::nil:
            return u"nil (byte 85)"_s;
        case archivetag::end:
            return u"the end of an object (byte 86)"_s;
        default:
            break;
    }
    const bool reserved = signedByte(byte) < archivetag::leastBareValue;
    return (reserved ? u"the reserved byte %1"_s : u"the byte %1"_s).arg(uint(byte), 2, 16, QChar(u'0'));
}

void ByteCursor::failAtEnd(const char* expected) const {
    failArchive(offset(), expected, u"the end of the file"_s);
}

QByteArrayView ByteCursor::takeBytes(quint64 count, const char* expected) {
    if (count > quint64(left())) {
        failArchive(
            offset(), u"%1 (bytes: %2)"_s.arg(QLatin1StringView(expected)).arg(count),
            left() == 0 ? u"the end of the file"_s : u"the end of the file after %1 bytes"_s.arg(left()));
    }
    const QByteArrayView bytes(_at, qsizetype(count));
    _at += count;
    return bytes;
}

qint64 ByteCursor::takeWideSigned(uchar head, const char* expected) {
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

quint64 ByteCursor::takeUnsigned(const char* expected) {
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

qint32 ByteCursor::takeInt32(const char* expected) {
    const qint64 start = offset();
    const qint64 value = takeSigned(expected);
    if (value != qint32(value)) {
        failArchive(start, u"%1 of 32 bits"_s.arg(QLatin1StringView(expected)), QString::number(value));
    }
    return qint32(value);
}

float ByteCursor::takeFloat() {
    const uchar head = take("a number");
    if (head == archivetag::real) return takeRaw<float>("a number");
    return float(takeSignedAfter(head, "a number"));
}

double ByteCursor::takeDouble() {
    const uchar head = take("a number");
    if (head == archivetag::real) return takeRaw<double>("a number");
    return double(takeSignedAfter(head, "a number"));
}

}  // namespace sargan
