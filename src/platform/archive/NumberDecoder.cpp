#include "platform/archive/NumberDecoder.h"

#include <bit>

#include "platform/archive/ArchiveWalker.h"

namespace sargan {

quint64 takeNumberBits(ByteCursor& at, NumberKind kind) {
    switch (kind) {
        case NumberKind::Bool:
            return at.take("a byte"_words);
        case NumberKind::Int:
            return quint32(at.takeInt32("an integer"_words));
        case NumberKind::LongLong:
            return quint64(at.takeSigned("an integer"_words));
        case NumberKind::Float:
            return std::bit_cast<quint32>(at.takeFloat());
        case NumberKind::Double:
            return std::bit_cast<quint64>(at.takeDouble());
        case NumberKind::Kept:
            break;
    }
    return 0;
}

NumberArray NumberDecoder::elements(int& height) {
    _items.groupOf('i', "the count of an array"_words);
    quint32 left = quint32(_items.takeCount(ClassFamily::Array));
    NumberArrayBuilder builder(left);
    if (left > 0) height = 1;
    while (left > 0) {
        height = qMax(height, element(builder));
        --left;
        if (_run) left -= _run->take(builder, left);
    }
    return builder.take();
}

int NumberDecoder::element(NumberArrayBuilder& builder) {
    const uchar* const group = _items.at.at();
    const quint32 strings = _items.tables().strings.size();
    _items.groupOf('@', "a number"_words);
    const ObjectHead head = _items.objectHead();
    if (head.what == ObjectHead::Nil) failArchive(head.offset, "a number"_words, "nil"_words);
    if (head.what == ObjectHead::New) {
        ArchiveWalker(_items, nullptr, _depth).contents(head);
        if (_run) _run->learn(head, group, strings);
    }
    append(builder, head.index, head.cls, head.offset);
    return _items.entry(head.index).height();
}

void NumberDecoder::append(NumberArrayBuilder& builder, quint32 index, quint32 cls, qint64 offset) {
    const ObjectEntry entry = _items.entry(index);
    if (entry.isNumber()) {
        ByteCursor at = _items.tables().cursorAt(entry.valueOffset());
        builder.append(entry.numberKind(), takeNumberBits(at, entry.numberKind()));
        return;
    }
    if (cls == noIndex) cls = _items.tables().classOfObject(index);
    const ClassFamily family = _items.entry(cls).family();
    if (family == ClassFamily::Number && appendOddNumber(builder, index)) return;
    if (family != ClassFamily::Number && family != ClassFamily::Unknown && !_items.entry(cls).isDerived()) {
        failArchive(
            offset, "a number"_words,
            {"an object of class %@"_words, {ArchivePhrase::name(_items.tables().classAt(cls).name)}});
    }
    builder.appendKept(_archive.objectAt(index));
}

/// A number whose class is described so long that its table entry cannot say where the value stands.
bool NumberDecoder::appendOddNumber(NumberArrayBuilder& builder, quint32 index) {
    ItemReader items(_items.tables(), index);
    items.objectHead();
    if (items.at.peek("a group"_words) == archivetag::end || items.groupType() != "*") return false;
    const NumberKind kind = numberKindOf(items.cString());
    if (kind == NumberKind::Kept || items.at.peek("a group"_words) == archivetag::end) return false;
    const QByteArrayView type = items.groupType();
    if (type.size() != 1 || type[0] != char(kind)) return false;
    builder.append(kind, takeNumberBits(items.at, kind));
    return true;
}

}  // namespace sargan
