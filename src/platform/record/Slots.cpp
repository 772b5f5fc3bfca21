#include "platform/record/Slots.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace sargan::slotio {

namespace {

/// Truncated towards zero; the nearest whole number where 32 bits do not reach, 0 for none.
qint32 wholeOf(Float value) {
    if (std::isnan(value)) return 0;
    return qint32(std::clamp<double>(std::trunc(value), INT_MIN, INT_MAX));
}

}  // namespace

void read(ArchiveReader& reader, SlotForm, Int& value, ArchivedObject&) {
    value = reader.readInt();
}

void read(ArchiveReader& reader, SlotForm form, Float& value, ArchivedObject&) {
    switch (form) {
        case SlotForm::Plain:
            value = reader.readFloat();
            break;
        case SlotForm::OldInt:
            value = Float(reader.readInt());
            break;
        case SlotForm::Bits:
            value = std::bit_cast<Float>(reader.readInt());
            break;
    }
}

void read(ArchiveReader& reader, SlotForm form, Text& value, ArchivedObject& kept) {
    value = form == SlotForm::OldInt ? QString::number(reader.readInt()) : reader.readText(kept);
}

void read(ArchiveReader& reader, SlotForm, Date& value, ArchivedObject& kept) {
    value = reader.readMoment(kept);
}

void read(ArchiveReader& reader, SlotForm, Numbers& value, ArchivedObject& kept) {
    value = reader.readNumbers(kept);
}

void read(ArchiveReader& reader, SlotForm, Picture& value, ArchivedObject& kept) {
    kept = reader.readObject();
    value.bytes = kept.pictureBytes();
}

void write(ArchiveWriter& writer, SlotForm, const Int& value) {
    writer.writeInt(value);
}

void write(ArchiveWriter& writer, SlotForm form, const Float& value) {
    switch (form) {
        case SlotForm::Plain:
            writer.writeFloat(value);
            break;
        case SlotForm::OldInt:
            writer.writeInt(wholeOf(value));
            break;
        case SlotForm::Bits:
            writer.writeInt(std::bit_cast<qint32>(value));
            break;
    }
}

void write(ArchiveWriter& writer, SlotForm form, const Text& value) {
    form == SlotForm::OldInt ? writer.writeInt(value.toInt()) : writer.writeText(value);
}

void write(ArchiveWriter& writer, SlotForm, const Date& value) {
    writer.writeMoment(value);
}

void write(ArchiveWriter& writer, SlotForm, const Numbers& value) {
    writer.writeNumbers(value);
}

void write(ArchiveWriter& writer, SlotForm, const Picture& value) {
    if (value.isAbsent()) return writer.writeNil();
    static constexpr ArchiveClass image{"NSImage", 0, &archiveclass::object};
    writer.beginObject(image);
    writer.writeBytes(value.bytes);
    writer.endObject();
}

char typeCode(SlotForm form, std::size_t memberIndex) {
    if (memberIndex == 0 || form != SlotForm::Plain) return 'i';
    return memberIndex == 1 ? 'f' : '@';
}

}  // namespace sargan::slotio

namespace sargan {

namespace {

QString versionWords(int first, int last) {
    if (first != INT_MIN && last != INT_MAX) return QStringLiteral("%1 to %2").arg(first).arg(last);
    if (first != INT_MIN) return QStringLiteral("%1 and later").arg(first);
    if (last != INT_MAX) return QStringLiteral("up to %1").arg(last);
    return QStringLiteral("all");
}

}  // namespace

SlotDescription describeSlot(int number, const char* field, const char* writtenFrom, char type,
                             int firstVersion, int lastVersion, SlotForm form) {
    QString remark;
    if (form == SlotForm::Bits) remark = QStringLiteral("the 32 bits of the float, as an integer");
    if (form == SlotForm::OldInt) remark = QStringLiteral("a whole number in these versions");
    if (field != writtenFrom) remark = QStringLiteral("written from %1").arg(QLatin1String(writtenFrom));
    return {number, QString::fromLatin1(field), type, versionWords(firstVersion, lastVersion), remark};
}

}  // namespace sargan
