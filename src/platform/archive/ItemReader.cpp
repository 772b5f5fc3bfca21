#include "platform/archive/ItemReader.h"

#include "platform/archive/TypeEncoding.h"

using namespace Qt::StringLiterals;

namespace sargan {

void ItemReader::header() {
    const uchar streamer = at.take("an archive");
    if (streamer != 4) failArchive(0, "streamer version 4", u"version %1"_s.arg(streamer));
    const uchar length = at.take("a signature");
    if (length != 11) failArchive(1, "a signature of 11 letters", u"%1"_s.arg(length));
    const QByteArrayView signature = at.takeBytes(length, "a signature");
    if (signature == QByteArrayView("typedstream")) {
        failArchive(2, "a little-endian archive", u"a big-endian one"_s);
    }
    if (signature != QByteArrayView("streamtyped")) {
        failArchive(2, "the signature \"streamtyped\"", u"other bytes"_s);
    }
    at.takeSigned("a system version");
}

ObjectHead ItemReader::rootArray() {
    groupOf('@', "the root array");
    const ObjectHead head = objectHead();
    if (head.what != ObjectHead::New) failArchive(head.offset, "an array", u"nil or a reference"_s);
    const ObjectEntry cls = entry(head.cls);
    if (cls.family() != ClassFamily::Array || cls.isDerived()) {
        failArchive(head.offset, "an array",
                    u"an object of class %1"_s.arg(QString::fromUtf8(_tables->classAt(head.cls).name)));
    }
    groupOf('i', "the count of the root array");
    return head;
}

void ItemReader::endOfFile() {
    if (at.left() > 0) {
        failArchive(at.offset(), "the end of the file", u"%1 more bytes"_s.arg(at.left()));
    }
}

QByteArrayView ItemReader::newStringText(const char* expected) {
    const quint64 length = at.takeUnsigned(expected);
    return at.takeBytes(length, expected);
}

quint32 ItemReader::reference(uchar head, qint64 offset, const char* expected) {
    const qint64 number = at.takeSignedAfter(head, expected);
    const quint64 index = quint64(number) - archivetag::referenceBase;
    if (index >= noIndex) failArchive(offset, expected, u"the reference number %1"_s.arg(number));
    return quint32(index);
}

ItemReader::SharedString ItemReader::sharedString(const char* expected, bool nilAllowed) {
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
                    u"a reference to string %1 of %2"_s.arg(index).arg(_tables->strings.size()));
    }
    return {_tables->stringAt(index), index};
}

QByteArrayView ItemReader::groupType() {
    const qint64 offset = at.offset();
    const SharedString type = sharedString("a type encoding", false);
    if (_growing && !(_growing->strings[type.index] & Archive::Tables::checkedType)) {
        checkTypeEncoding(type.text, offset);
        _growing->strings[type.index] |= Archive::Tables::checkedType;
    }
    return type.text;
}

void ItemReader::groupOf(char code, const char* expected) {
    const qint64 offset = at.offset();
    if (at.peek(expected) == archivetag::end) failArchive(offset, expected, describeByte(archivetag::end));
    const QByteArrayView type = groupType();
    if (type.size() != 1 || type[0] != code) {
        failArchive(offset, u"%1 (type \"%2\")"_s.arg(QLatin1StringView(expected)).arg(QLatin1Char(code)),
                    u"type \"%1\""_s.arg(QString::fromLatin1(type.first(qMin(type.size(), qsizetype(80))))));
    }
}

quint64 ItemReader::takeCount(ClassFamily family) {
    const qint64 offset = at.offset();
    qint64 count = 0;
    if (family == ClassFamily::Set) {
        count = qint64(qMin<quint64>(at.takeUnsigned("a count"), std::numeric_limits<qint64>::max()));
    } else {
        count = at.takeInt32("a count");
    }
    // An element takes a byte for its type and one for its head at least; a dictionary's entry is two.
    const int bytesEach = family == ClassFamily::Dictionary ? 4 : 2;
    if (count < 0 || count > at.left() / bytesEach) {
        failArchive(offset, u"a count that the remaining bytes (%1) can hold"_s.arg(at.left()),
                    QString::number(count));
    }
    return quint64(count) * (family == ClassFamily::Dictionary ? 2 : 1);
}

QByteArrayView ItemReader::sharedText(const char* expected, bool nilAllowed) {
    return sharedString(expected, nilAllowed).text;
}

QByteArrayView ItemReader::unsharedText() {
    if (at.peek("a text") == archivetag::nil) {
        at.take("a text");
        return {};
    }
    return newStringText("a text");
}

quint32 ItemReader::openItem(qint64 offset) {
    if (!_growing) return _next++;
    _growing->objects.push(ObjectEntry::open(offset));
    return _growing->objects.size() - 1;
}

QByteArrayView ItemReader::cString() {
    const qint64 offset = at.offset();
    const uchar head = at.take("a C string");
    if (head == archivetag::nil) return {};
    if (head == archivetag::newItem) {
        const quint32 index = openItem(offset);
        const QByteArrayView text = sharedText("the text of a C string", false);
        if (text.contains('\0')) failArchive(offset, "a C string", u"a text with a zero byte in it"_s);
        if (_growing) _growing->objects[index] = ObjectEntry::cString(offset);
        return text;
    }
    const quint32 index = reference(head, offset, "a C string");
    if (index >= _tables->objects.size() || entry(index).type() != ObjectEntry::CString) {
        failArchive(offset, "a C string", u"a reference to item %1, which is none"_s.arg(index));
    }
    ByteCursor text = _tables->cursorAt(entry(index).offset() + 1);
    if (text.take("a text") == archivetag::newItem) {
        const quint64 length = text.takeUnsigned("a length");
        return text.takeBytes(length, "a text");
    }
    text.moveTo(text.at() - 1);
    return _tables->stringAt(quint32(text.takeSigned("a reference") - archivetag::referenceBase));
}

ItemReader::NewClass ItemReader::newClass(qint64 offset) {
    NewClass cls{openItem(offset), offset, {}};
    const qint64 nameOffset = at.offset();
    cls.name = sharedText("a class name", false);
    if (cls.name.isEmpty()) failArchive(nameOffset, "a class name", u"an empty one"_s);
    const qint64 versionOffset = at.offset();
    const qint32 version = at.takeInt32("a class version");
    if (cls.name == "NSString" && version != 1) {
        failArchive(versionOffset, "version 1 of class NSString", QString::number(version));
    }
    return cls;
}

quint32 ItemReader::classReference() {
    std::vector<NewClass> classes;
    for (;;) {
        const qint64 offset = at.offset();
        const uchar head = at.take("a class");
        quint32 super = noIndex;
        if (head == archivetag::newItem) {
            if (classes.size() == mostClassesInChain)
                failArchive(offset, "at most 64 superclasses", u"more"_s);
            classes.push_back(newClass(offset));
            continue;
        }
        if (head != archivetag::nil) {
            super = reference(head, offset, "a class");
            if (super >= _tables->objects.size() || entry(super).type() != ObjectEntry::Class) {
                failArchive(offset, "a class", u"a reference to item %1, which is none"_s.arg(super));
            }
            if (int(classes.size()) + entry(super).chainLength() > mostClassesInChain) {
                failArchive(offset, "at most 64 superclasses", u"more"_s);
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
    const uchar byte = at.take("an object");
    if (byte == archivetag::nil) return head;
    if (byte == archivetag::newItem) {
        head.what = ObjectHead::New;
        head.index = openItem(head.offset);
        const qint64 classOffset = at.offset();
        head.cls = classReference();
        if (head.cls == noIndex) failArchive(classOffset, "the class of an object", u"nil"_s);
        return head;
    }
    head.what = ObjectHead::Reference;
    head.index = reference(byte, head.offset, "an object");
    if (head.index >= _tables->objects.size()) {
        failArchive(head.offset, "an object",
                    u"a reference to item %1 of %2"_s.arg(head.index).arg(_tables->objects.size()));
    }
    const ObjectEntry target = entry(head.index);
    if (target.type() == ObjectEntry::Open) {
        failArchive(head.offset, "a finished object",
                    u"a reference to item %1, which contains it"_s.arg(head.index));
    }
    if (!target.isObject()) {
        failArchive(head.offset, "an object", u"a reference to item %1, which is none"_s.arg(head.index));
    }
    return head;
}

void ItemReader::objectEnd(const ObjectHead& head, int height) {
    const qint64 offset = at.offset();
    const uchar byte = at.take("the end of an object");
    if (byte != archivetag::end) failArchive(offset, "the end of an object", describeByte(byte));
    if (!_growing) return;
    if (height > mostNestedObjects) {
        failArchive(head.offset, "at most 256 nested objects", u"more, counted through references"_s);
    }
    _growing->objects[head.index] = ObjectEntry::object(head.offset, height);
}

void ItemReader::markNumber(const ObjectHead& head, NumberKind kind, qint64 valueOffset) {
    const qint64 delta = valueOffset - head.offset;
    if (!_growing || delta > ObjectEntry::mostDelta) return;
    _growing->objects[head.index] = ObjectEntry::number(head.offset, kind, int(delta));
}

}  // namespace sargan
