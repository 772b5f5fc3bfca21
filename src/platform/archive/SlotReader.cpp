#include "platform/archive/SlotReader.h"

#include "platform/archive/ArchiveWalker.h"

namespace sargan {

namespace {

/// Values at least this long in the file are remembered, so that reading through many references to one
/// takes no longer than reading the file. Of shorter ones as many as this are, to save memory.
constexpr qint64 longValue = 64;
constexpr qsizetype mostShortValues = 65536;
/// Objects around a slot's value: the root array and the record.
constexpr int slotDepth = 2;

}  // namespace

ObjectHead SlotReader::takeHead() {
    _items.groupOf('@', "an object"_words);
    return _items.objectHead();
}

quint32 SlotReader::classOf(const ObjectHead& head) const {
    return head.what == ObjectHead::New ? head.cls : _items.tables().classOfObject(head.index);
}

void SlotReader::passOver(const ObjectHead& head) {
    if (head.what == ObjectHead::New) ArchiveWalker(_items, nullptr, slotDepth).contents(head);
    grow(_items.entry(head.index).height());
}

ArchivedObject SlotReader::keep(const ObjectHead& head) {
    passOver(head);
    return _archive.objectAt(head.index);
}

void SlotReader::requireUnknown(const ObjectHead& head, quint32 cls, ArchiveWords expected) const {
    const ObjectEntry entry = _items.entry(cls);
    if (entry.family() == ClassFamily::Unknown || entry.isDerived()) return;
    failArchive(head.offset, expected,
                {"an object of class %@"_words, {ArchivePhrase::name(_items.tables().classAt(cls).name)}});
}

void SlotReader::finishContents(const ObjectHead& head, int height, bool derived) {
    if (derived) height = qMax(height, ArchiveWalker(_items, nullptr, slotDepth + 1).groups());
    _items.objectEnd(head, height + 1);
    grow(height + 1);
}

QString SlotReader::textContents(const ObjectHead& head) {
    const QByteArrayView text = ArchiveWalker(_items).text();
    finishContents(head, 0, _items.entry(head.cls).isDerived());
    return QString::fromUtf8(text);
}

QString SlotReader::textByReference(quint32 index) {
    grow(_items.entry(index).height());
    const auto known = _texts.constFind(index);
    if (known != _texts.constEnd()) return *known;
    QString text = _archive.objectAt(index).asText();
    if (text.size() >= longValue || _texts.size() < mostShortValues) _texts.insert(index, text);
    return text;
}

QString SlotReader::text(ArchivedObject& kept) {
    kept = {};
    const ObjectHead head = takeHead();
    if (head.what == ObjectHead::Nil) return {};
    const quint32 cls = classOf(head);
    if (_items.entry(cls).family() == ClassFamily::String) {
        return head.what == ObjectHead::New ? textContents(head) : textByReference(head.index);
    }
    requireUnknown(head, cls, "a text"_words);
    kept = keep(head);
    return {};
}

std::optional<double> SlotReader::dateOf(quint32 index) const {
    ItemReader items(_items.tables(), index);
    items.objectHead();
    if (items.at.peek("a group"_words) == archivetag::end || items.groupType() != "d") return std::nullopt;
    return items.at.takeDouble();
}

Moment SlotReader::moment(ArchivedObject& kept) {
    kept = {};
    const ObjectHead head = takeHead();
    if (head.what == ObjectHead::Nil) return {};
    const quint32 cls = classOf(head);
    const ObjectEntry entry = _items.entry(cls);
    if (entry.family() != ClassFamily::Date) {
        requireUnknown(head, cls, "a date"_words);
        kept = keep(head);
        return {};
    }
    if (!entry.isDerived() && head.what == ObjectHead::New) {
        _items.groupOf('d', "a date"_words);
        const double seconds = _items.at.takeDouble();
        finishContents(head, 0, false);
        return Moment::fromSeconds(seconds);
    }
    passOver(head);
    if (entry.isDerived()) kept = _archive.objectAt(head.index);
    const std::optional<double> seconds = dateOf(head.index);
    if (!seconds && !entry.isDerived()) failArchive(head.offset, "a date"_words, "one without seconds"_words);
    return seconds ? Moment::fromSeconds(*seconds) : Moment();
}

NumberArray SlotReader::arrayContents(const ObjectHead& head) {
    const qint64 start = head.offset;
    int height = 0;
    NumberArray numbers = NumberDecoder(_items, &_run, _archive, slotDepth + 1).elements(height);
    finishContents(head, height, _items.entry(head.cls).isDerived());
    if (_items.at.offset() - start >= longValue) _arrays.insert(head.index, numbers);
    return numbers;
}

NumberArray SlotReader::arrayByReference(quint32 index) {
    grow(_items.entry(index).height());
    const auto known = _arrays.constFind(index);
    if (known != _arrays.constEnd()) return *known;
    ItemReader items(_items.tables(), index);
    const ObjectHead head = items.objectHead();
    int height = 0;
    NumberArray numbers = NumberDecoder(items, nullptr, _archive, slotDepth + 1).elements(height);
    if (items.at.offset() - head.offset >= longValue || _shortArrays++ < mostShortValues) {
        _arrays.insert(index, numbers);
    }
    return numbers;
}

NumberArray SlotReader::numbers(ArchivedObject& kept) {
    kept = {};
    const ObjectHead head = takeHead();
    if (head.what == ObjectHead::Nil) return {};
    const quint32 cls = classOf(head);
    const ObjectEntry entry = _items.entry(cls);
    if (entry.family() != ClassFamily::Array) {
        requireUnknown(head, cls, "an array of numbers"_words);
        kept = keep(head);
        return {};
    }
    NumberArray numbers = head.what == ObjectHead::New ? arrayContents(head) : arrayByReference(head.index);
    if (entry.isDerived()) kept = _archive.objectAt(head.index);
    return numbers;
}

ArchivedObject SlotReader::object() {
    const ObjectHead head = takeHead();
    return head.what == ObjectHead::Nil ? ArchivedObject() : keep(head);
}

}  // namespace sargan
