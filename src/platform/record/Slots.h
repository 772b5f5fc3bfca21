#pragma once

#include <climits>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"
#include "platform/record/Field.h"

namespace sargan {

/// How a slot's archived value relates to its field.
enum class SlotForm : char {
    Plain,   ///< int32 "i", float32 "f", object "@" by the field's type
    OldInt,  ///< a float or text field that was archived as a whole number "i"
    Bits,    ///< a float field whose 32-bit pattern is archived as "i", no numeric conversion
};

/// One value in the archive of record class R. It is in the stream when its version range holds the
/// version that the file names for the class. The slots of a class in order are its file format.
template <class R>
struct Slot {
    const Field<R>* field;
    const Field<R>* writtenFrom;  ///< differs from `field` where another field is written in this place
    int firstVersion = INT_MIN;
    int lastVersion = INT_MAX;
    SlotForm form = SlotForm::Plain;

    constexpr Slot since(int version) const {
        Slot slot = *this;
        slot.firstVersion = version;
        return slot;
    }
    constexpr Slot until(int version) const {
        Slot slot = *this;
        slot.lastVersion = version;
        return slot;
    }
    constexpr Slot writing(const Field<R>& other) const {
        Slot slot = *this;
        slot.writtenFrom = &other;
        return slot;
    }
    constexpr bool isIn(int version) const { return firstVersion <= version && version <= lastVersion; }
};

template <class R>
constexpr Slot<R> slot(const Field<R>& field) {
    return {&field, &field};
}
template <class R>
constexpr Slot<R> oldInt(const Field<R>& field) {
    return {&field, &field, INT_MIN, INT_MAX, SlotForm::OldInt};
}
template <class R>
constexpr Slot<R> bits(const Field<R>& field) {
    return {&field, &field, INT_MIN, INT_MAX, SlotForm::Bits};
}

/// A record class in archives. `prepare` runs before the first slot is read, `finish` after the last: they
/// do what a slot cannot say, such as moving values between fields.
template <class R>
struct RecordClass {
    const char* name;
    qint32 version;  ///< the version that is written; what is read may be of any version
    FieldList<R> fields;
    std::span<const Slot<R>> slots;
    void (*prepare)(R&, qint32 version) = nullptr;
    void (*finish)(R&, qint32 version) = nullptr;
    FieldList<R> realLists = {};  ///< number lists of reals (archived as doubles); other lists hold integers

    /// Whether the current version keeps this field in its files.
    bool archives(const Field<R>& field) const {
        return std::any_of(slots.begin(), slots.end(),
                           [&](const Slot<R>& slot) { return slot.field == &field && slot.isIn(version); });
    }
    bool isRealList(const Field<R>& field) const {
        return std::find(realLists.begin(), realLists.end(), &field) != realLists.end();
    }
};

template <class R>
using RecordPointer = std::shared_ptr<const R>;
template <class R>
using Records = QList<RecordPointer<R>>;

namespace slotio {

void read(ArchiveReader& reader, SlotForm form, Int& value, ArchivedObject& kept);
void read(ArchiveReader& reader, SlotForm form, Float& value, ArchivedObject& kept);
void read(ArchiveReader& reader, SlotForm form, Text& value, ArchivedObject& kept);
void read(ArchiveReader& reader, SlotForm form, Date& value, ArchivedObject& kept);
void read(ArchiveReader& reader, SlotForm form, Numbers& value, ArchivedObject& kept);
void read(ArchiveReader& reader, SlotForm form, Picture& value, ArchivedObject& kept);

void write(ArchiveWriter& writer, SlotForm form, const Int& value);
void write(ArchiveWriter& writer, SlotForm form, const Float& value);
void write(ArchiveWriter& writer, SlotForm form, const Text& value);
void write(ArchiveWriter& writer, SlotForm form, const Date& value);
void write(ArchiveWriter& writer, SlotForm form, const Numbers& value);
void write(ArchiveWriter& writer, SlotForm form, const Picture& value);

/// The type code in the archive: 'i', 'f' or '@'.
char typeCode(SlotForm form, std::size_t memberIndex);

}  // namespace slotio

template <class R>
void readSlot(ArchiveReader& reader, const RecordClass<R>& cls, const Slot<R>& slot, R& record) {
    reader.atSlot(slot.field->name);
    ArchivedObject kept;
    slot.field->visit(record, [&](auto& value) { slotio::read(reader, slot.form, value, kept); });
    if (!kept.isNil()) record.keep(fieldIndex(cls.fields, *slot.field), std::move(kept));
}

/// Reads the slots of one record whose head has been read.
template <class R>
R readRecord(ArchiveReader& reader, const RecordClass<R>& cls, qint32 version) {
    R record;
    if (cls.prepare) cls.prepare(record, version);
    for (const Slot<R>& slot : cls.slots)
        if (slot.isIn(version)) readSlot(reader, cls, slot, record);
    if (cls.finish) cls.finish(record, version);
    return record;
}

/// Reads an archive whose root is an array of records of this class. A record that stands in the array
/// twice is one record in the result, twice. `version`, when given, receives the class version that the
/// file names, or stays as it is when the array is empty. Throws ArchiveError.
/// `keepGoing` is asked now and then with the share read (0..1); answering false throws Cancelled.
struct ReadCancelled {};
template <class R>
Records<R> readRecords(const QByteArray& bytes, const RecordClass<R>& cls, qint32* version = nullptr,
                       const std::function<bool(double)>& keepGoing = {}) {
    ArchiveReader reader(bytes);
    const quint32 count = reader.beginRootArray();
    Records<R> records;
    records.reserve(count);  // the reader has bounded it by the file's size
    std::vector<RecordPointer<R>> distinct;
    for (quint32 i = 0; i < count; ++i) {
        const ArchiveReader::Element element = reader.beginElement(cls.name);
        if (!element.isNew) {
            records.append(distinct.at(element.number));
            continue;
        }
        const qint32 stored = reader.elementVersion();
        if (version) *version = stored;
        distinct.push_back(std::make_shared<const R>(readRecord(reader, cls, stored)));
        records.append(distinct.back());
        reader.endElement();
        if (keepGoing && i % 256 == 0 && !keepGoing(double(reader.offset()) / double(bytes.size())))
            throw ReadCancelled{};
    }
    reader.endRootArray();
    return records;
}

template <class R>
void writeSlot(ArchiveWriter& writer, const RecordClass<R>& cls, const Slot<R>& slot, const R& record) {
    if (record.hasKept()) {
        const ArchivedObject kept = record.kept(fieldIndex(cls.fields, *slot.writtenFrom));
        if (!kept.isNil()) return writer.writeObject(kept);
    }
    slot.writtenFrom->visit(record, [&](const auto& value) { slotio::write(writer, slot.form, value); });
}

/// An archive of these records, as the class's current version or, for tests, as another one. The same
/// record twice in the list is written once and referenced.
template <class R>
QByteArray writeRecords(const Records<R>& records, const RecordClass<R>& cls,
                        std::optional<qint32> asVersion = {}) {
    const qint32 version = asVersion.value_or(cls.version);
    const ArchiveClass archived{cls.name, version, &archiveclass::object};
    ArchiveWriter writer;
    writer.beginRootArray(quint32(records.size()));
    for (const RecordPointer<R>& record : records) {
        if (!writer.beginInstance(record.get(), archived)) continue;
        for (const Slot<R>& slot : cls.slots)
            if (slot.isIn(version)) writeSlot(writer, cls, slot, *record);
        writer.endObject();
    }
    writer.endRootArray();
    return writer.take();
}

/// The format page's rows for a class: number, field, type code, versions, and what is unusual.
struct SlotDescription {
    int number;
    QString field;
    char type;
    QString versions;  ///< "all", "24 and later", "up to 26"
    QString remark;    ///< empty when the slot is plain
};
SlotDescription describeSlot(int number, const char* field, const char* writtenFrom, char type,
                             int firstVersion, int lastVersion, SlotForm form);
template <class R>
QList<SlotDescription> describeSlots(const RecordClass<R>& cls) {
    QList<SlotDescription> rows;
    for (const Slot<R>& slot : cls.slots)
        rows.append(describeSlot(int(rows.size()) + 1, slot.field->name, slot.writtenFrom->name,
                                 slotio::typeCode(slot.form, slot.field->member.index()), slot.firstVersion,
                                 slot.lastVersion, slot.form));
    return rows;
}

}  // namespace sargan
