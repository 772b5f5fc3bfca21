#include "platform/archive/ItemReader.h"

#include "platform/archive/TypeEncoding.h"

namespace sargan {

void ItemReader::header() {
    const uchar streamer = at.take("an archive"_words);
    if (streamer != 4) failArchive(0, "streamer version 4"_words, {"version %@"_words, {streamer}});
    const uchar length = at.take("a signature"_words);
    if (length != 11) failArchive(1, "a signature of 11 letters"_words, length);
    const QByteArrayView signature = at.takeBytes(length, "a signature"_words);
    if (signature == QByteArrayView("typedstream")) {
        failArchive(2, "a little-endian archive"_words, "a big-endian one"_words);
    }
    if (signature != QByteArrayView("streamtyped")) {
        failArchive(2, "the signature \"streamtyped\""_words, "other bytes"_words);
    }
    at.takeSigned("a system version"_words);
}

ObjectHead ItemReader::rootArray() {
    groupOf('@', "the root array"_words);
    const ObjectHead head = objectHead();
    if (head.what != ObjectHead::New) failArchive(head.offset, "an array"_words, "nil or a reference"_words);
    const ObjectEntry cls = entry(head.cls);
    if (cls.family() != ClassFamily::Array || cls.isDerived()) {
        failArchive(head.offset, "an array"_words,
                    {"an object of class %@"_words, {ArchivePhrase::name(_tables->classAt(head.cls).name)}});
    }
    groupOf('i', "the count of the root array"_words);
    return head;
}

void ItemReader::endOfFile() {
    if (at.left() > 0) {
        failArchive(at.offset(), "the end of the file"_words, {"%@ more bytes"_words, {at.left()}});
    }
}

QByteArrayView ItemReader::newStringText(ArchiveWords expected) {
    const quint64 length = at.takeUnsigned(expected);
    return at.takeBytes(length, expected);
}

quint32 ItemReader::reference(uchar head, qint64 offset, ArchiveWords expected) {
    const qint64 number = at.takeSignedAfter(head, expected);
    const quint64 index = quint64(number) - archivetag::referenceBase;
    if (index >= noIndex) failArchive(offset, expected, {"the reference number %@"_words, {number}});
    return quint32(index);
}

ItemReader::SharedString ItemReader::sharedString(ArchiveWords expected, bool nilAllowed) {
    const qint64 offset = at.offset();
    const uchar head = at.take(expected);
    if (head == archivetag::nil && nilAllowed) return {};
    if (head == archivetag::newItem) {
        const qint64 textOffset = at.offset();
        const QByteArrayView text = newStringText(expected);
        if (!_growing) return {text, noIndex};
        _growing->strings.push(quint64(textOffset));
        return {text, _growing->strings.size() - 1};
    }
    const quint32 index = reference(head, offset, expected);
    if (index >= _tables->strings.size()) {
        failArchive(offset, expected,
                    {"a reference to string %@ of %@"_words, {index, _tables->strings.size()}});
    }
    return {_tables->stringAt(index), index};
}

QByteArrayView ItemReader::groupType() {
    const qint64 offset = at.offset();
    const SharedString type = sharedString("a type encoding"_words, false);
    if (_growing && !(_growing->strings[type.index] & Archive::Tables::checkedType)) {
        checkTypeEncoding(type.text, offset);
        _growing->strings[type.index] |= Archive::Tables::checkedType;
    }
    return type.text;
}

void ItemReader::groupOf(char code, ArchiveWords expected) {
    const qint64 offset = at.offset();
    if (at.peek(expected) == archivetag::end) failArchive(offset, expected, describeByte(archivetag::end));
    const QByteArrayView type = groupType();
    if (type.size() != 1 || type[0] != code) {
        failArchive(offset, {"%@ (type \"%@\")"_words, {expected, QString(QLatin1Char(code))}},
                    {"type \"%@\""_words, {ArchivePhrase::name(type)}});
    }
}

quint64 ItemReader::takeCount(ClassFamily family) {
    const qint64 offset = at.offset();
    qint64 count = 0;
    if (family == ClassFamily::Set) {
        count = qint64(qMin<quint64>(at.takeUnsigned("a count"_words), std::numeric_limits<qint64>::max()));
    } else {
        count = at.takeInt32("a count"_words);
    }
    // An element takes a byte for its type and one for its head at least; a dictionary's entry is two.
    const int bytesEach = family == ClassFamily::Dictionary ? 4 : 2;
    if (count < 0 || count > at.left() / bytesEach) {
        failArchive(offset, {"a count that the remaining bytes (%@) can hold"_words, {at.left()}}, count);
    }
    return quint64(count) * (family == ClassFamily::Dictionary ? 2 : 1);
}

QByteArrayView ItemReader::sharedText(ArchiveWords expected, bool nilAllowed) {
    return sharedString(expected, nilAllowed).text;
}

QByteArrayView ItemReader::unsharedText() {
    if (at.peek("a text"_words) == archivetag::nil) {
        at.take("a text"_words);
        return {};
    }
    return newStringText("a text"_words);
}

quint32 ItemReader::openItem(qint64 offset) {
    if (!_growing) return _next++;
    _growing->objects.push(ObjectEntry::open(offset));
    return _growing->objects.size() - 1;
}

QByteArrayView ItemReader::cString() {
    const qint64 offset = at.offset();
    const uchar head = at.take("a C string"_words);
    if (head == archivetag::nil) return {};
    if (head == archivetag::newItem) {
        const quint32 index = openItem(offset);
        const QByteArrayView text = sharedText("the text of a C string"_words, false);
        if (text.contains('\0'))
            failArchive(offset, "a C string"_words, "a text with a zero byte in it"_words);
        if (_growing) _growing->objects[index] = ObjectEntry::cString(offset);
        return text;
    }
    const quint32 index = reference(head, offset, "a C string"_words);
    if (index >= _tables->objects.size() || entry(index).type() != ObjectEntry::CString) {
        failArchive(offset, "a C string"_words, {"a reference to item %@, which is none"_words, {index}});
    }
    ByteCursor text = _tables->cursorAt(entry(index).offset() + 1);
    if (text.take("a text"_words) == archivetag::newItem) {
        const quint64 length = text.takeUnsigned("a length"_words);
        return text.takeBytes(length, "a text"_words);
    }
    text.moveTo(text.at() - 1);
    return _tables->stringAt(quint32(text.takeSigned("a reference"_words) - archivetag::referenceBase));
}

ItemReader::NewClass ItemReader::newClass(qint64 offset) {
    NewClass cls{openItem(offset), offset, {}};
    const qint64 nameOffset = at.offset();
    cls.name = sharedText("a class name"_words, false);
    if (cls.name.isEmpty()) failArchive(nameOffset, "a class name"_words, "an empty one"_words);
    const qint64 versionOffset = at.offset();
    const qint32 version = at.takeInt32("a class version"_words);
    if (cls.name == "NSString" && version != 1) {
        failArchive(versionOffset, "version 1 of class NSString"_words, version);
    }
    return cls;
}

quint32 ItemReader::classReference() {
    std::vector<NewClass> classes;
    for (;;) {
        const qint64 offset = at.offset();
        const uchar head = at.take("a class"_words);
        quint32 super = noIndex;
        if (head == archivetag::newItem) {
            if (classes.size() == mostClassesInChain)
                failArchive(offset, "at most 64 superclasses"_words, "more"_words);
            classes.push_back(newClass(offset));
            continue;
        }
        if (head != archivetag::nil) {
            super = reference(head, offset, "a class"_words);
            if (super >= _tables->objects.size() || entry(super).type() != ObjectEntry::Class) {
                failArchive(offset, "a class"_words,
                            {"a reference to item %@, which is none"_words, {super}});
            }
            if (int(classes.size()) + entry(super).chainLength() > mostClassesInChain) {
                failArchive(offset, "at most 64 superclasses"_words, "more"_words);
            }
        }
        if (classes.empty()) return super;
        if (_growing) closeClasses(classes, super);
        return classes.front().index;
    }
}

void ItemReader::closeClasses(const std::vector<NewClass>& classes, quint32 super) {
    for (auto cls = classes.rbegin(); cls != classes.rend(); ++cls) {
        ClassFamily family = knownFamily(cls->name);
        bool derived = false;
        int chainLength = 1;
        if (super != noIndex) {
            chainLength += entry(super).chainLength();
            const ClassFamily inherited = entry(super).family();
            if (family == ClassFamily::Unknown && inherited != ClassFamily::Object) {
                family = inherited;
                derived = true;
            }
        }
        _growing->objects[cls->index] = ObjectEntry::archivedClass(cls->offset, family, derived, chainLength);
        super = cls->index;
    }
}

ObjectHead ItemReader::objectHead() {
    ObjectHead head;
    head.offset = at.offset();
    const uchar byte = at.take("an object"_words);
    if (byte == archivetag::nil) return head;
    if (byte == archivetag::newItem) {
        head.what = ObjectHead::New;
        head.index = openItem(head.offset);
        const qint64 classOffset = at.offset();
        head.cls = classReference();
        if (head.cls == noIndex) failArchive(classOffset, "the class of an object"_words, "nil"_words);
        return head;
    }
    head.what = ObjectHead::Reference;
    head.index = reference(byte, head.offset, "an object"_words);
    if (head.index >= _tables->objects.size()) {
        failArchive(head.offset, "an object"_words,
                    {"a reference to item %@ of %@"_words, {head.index, _tables->objects.size()}});
    }
    const ObjectEntry target = entry(head.index);
    if (target.type() == ObjectEntry::Open) {
        failArchive(head.offset, "a finished object"_words,
                    {"a reference to item %@, which contains it"_words, {head.index}});
    }
    if (!target.isObject()) {
        failArchive(head.offset, "an object"_words,
                    {"a reference to item %@, which is none"_words, {head.index}});
    }
    return head;
}

void ItemReader::objectEnd(const ObjectHead& head, int height) {
    const qint64 offset = at.offset();
    const uchar byte = at.take("the end of an object"_words);
    if (byte != archivetag::end) failArchive(offset, "the end of an object"_words, describeByte(byte));
    if (!_growing) return;
    if (height > mostNestedObjects) {
        failArchive(head.offset, "at most 256 nested objects"_words,
                    "more, counted through references"_words);
    }
    _growing->objects[head.index] = ObjectEntry::object(head.offset, height);
}

void ItemReader::markNumber(const ObjectHead& head, NumberKind kind, qint64 valueOffset) {
    const qint64 delta = valueOffset - head.offset;
    if (!_growing || delta > ObjectEntry::mostDelta) return;
    _growing->objects[head.index] = ObjectEntry::number(head.offset, kind, int(delta));
}

}  // namespace sargan
