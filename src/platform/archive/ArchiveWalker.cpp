#include "platform/archive/ArchiveWalker.h"

#include <QUtf8StringView>
#include <limits>

namespace sargan {

namespace {

ValueSink& ignoringSink() {
    static ValueSink sink;
    return sink;
}

struct IntegerRange {
    qint64 least;
    qint64 most;
};

template <typename T>
constexpr IntegerRange rangeOf() {
    return {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
}

IntegerRange signedRange(char code) {
    if (code == 's') return rangeOf<qint16>();
    return code == 'i' ? rangeOf<qint32>() : rangeOf<qint64>();
}

/// Whether objects of exactly a known class of this family hold nothing but the groups that are checked.
bool hasFixedLayout(ClassFamily family) {
    return family == ClassFamily::String || family == ClassFamily::Array || family == ClassFamily::Set ||
           family == ClassFamily::Dictionary;
}

quint64 unsignedMost(char code) {
    if (code == 'S') return std::numeric_limits<quint16>::max();
    return code == 'I' ? std::numeric_limits<quint32>::max() : std::numeric_limits<quint64>::max();
}

}  // namespace

NumberKind numberKindOf(QByteArrayView typeCode) {
    if (typeCode.size() != 1 || !QByteArrayView("ciqfd").contains(typeCode[0])) return NumberKind::Kept;
    return NumberKind(typeCode[0]);
}

ArchiveWalker::ArchiveWalker(ItemReader& items, ValueSink* sink, int depth)
    : _items(items), _sink(sink ? sink : &ignoringSink()), _depth(depth) {}

ArchiveWalker::ArchiveWalker(ItemReader& items, NumberRun& run) : ArchiveWalker(items) {
    _run = &run;
}

int ArchiveWalker::object() {
    return objectAfterHead(_items.objectHead());
}

int ArchiveWalker::objectAfterHead(const ObjectHead& head) {
    if (head.what == ObjectHead::Nil) {
        _sink->nil('@');
        return 0;
    }
    if (head.what == ObjectHead::Reference) {
        _sink->reference(head.index);
        return _items.entry(head.index).height();
    }
    return contents(head);
}

int ArchiveWalker::contents(const ObjectHead& head) {
    if (++_depth > mostNestedObjects)
        failArchive(head.offset, "at most 256 nested objects"_words, "more"_words);
    ValueSink* const sink = _sink;
    if (!sink->beginObject(head.index, head.cls)) _sink = &ignoringSink();
    const ObjectEntry cls = _items.entry(head.cls);
    FoundNumber number;
    int height = knownGroups(cls, number);
    if (cls.isDerived() || !hasFixedLayout(cls.family())) height = qMax(height, groups());
    _items.objectEnd(head, height + 1);
    if (number.kind != NumberKind::Kept && height == 0) {
        _items.markNumber(head, number.kind, number.valueOffset);
    }
    if (_sink == sink) sink->endObject();
    _sink = sink;
    --_depth;
    return height + 1;
}

int ArchiveWalker::knownGroups(ObjectEntry cls, FoundNumber& number) {
    switch (cls.family()) {
        case ClassFamily::String:
            text();
            return 0;
        case ClassFamily::Number:
            return numberGroups(number);
        case ClassFamily::Array:
        case ClassFamily::Set:
        case ClassFamily::Dictionary:
            return cls.isDerived() ? 0 : collectionGroups(cls.family());
        default:
            return 0;
    }
}

int ArchiveWalker::groups() {
    int height = 0;
    while (!atEndOfObject()) height = qMax(height, group());
    return height;
}

int ArchiveWalker::group() {
    return values(_items.groupType());
}

int ArchiveWalker::values(QByteArrayView type) {
    _sink->beginGroup(type);
    int height = 0;
    for (TypeCursor cursor(type); !cursor.atEnd();) height = qMax(height, value(cursor));
    _sink->endGroup();
    return height;
}

int ArchiveWalker::value(TypeCursor& type) {
    const char code = type.take();
    switch (code) {
        case '@':
            return object();
        case '[':
            return arrayValue(type);
        case '{':
            return structValue(type);
        case 'f':
            _sink->realFloat(_items.at.takeFloat());
            return 0;
        case 'd':
            _sink->realDouble(_items.at.takeDouble());
            return 0;
        case '#':
            classValue();
            return 0;
        case '+':
        case '*':
        case ':':
        case '%':
            textValue(code);
            return 0;
        default:
            simpleInteger(code);
            return 0;
    }
}

void ArchiveWalker::classValue() {
    const quint32 cls = _items.classReference();
    cls == noIndex ? _sink->nil('#') : _sink->classValue(cls);
}

void ArchiveWalker::textValue(char code) {
    const QByteArrayView text = code == '+'   ? _items.unsharedText()
                                : code == '*' ? _items.cString()
                                              : _items.sharedText("a selector"_words, true);
    text.isNull() ? _sink->nil(code) : _sink->bytes(code, text);
}

void ArchiveWalker::simpleInteger(char code) {
    const qint64 offset = _items.at.offset();
    if (code == 'c') return _sink->integer(code, qint8(_items.at.take("a byte"_words)));
    if (code == 'C' || code == 'B') return _sink->integer(code, _items.at.take("a byte"_words));
    const bool isSigned = code >= 'a';
    qint64 value = 0;
    bool fits = false;
    if (isSigned) {
        value = _items.at.takeSigned("an integer"_words);
        fits = value >= signedRange(code).least && value <= signedRange(code).most;
    } else {
        const quint64 wide = _items.at.takeUnsigned("an integer"_words);
        fits = wide <= unsignedMost(code);
        value = qint64(wide);
    }
    if (!fits) {
        failArchive(offset, {"an integer that fits type \"%@\""_words, {QString(QLatin1Char(code))}},
                    isSigned ? ArchivePhrase(value) : ArchivePhrase(quint64(value)));
    }
    _sink->integer(code, value);
}

int ArchiveWalker::arrayValue(TypeCursor& type) {
    const quint64 length = type.takeLength();
    const qsizetype element = type.place();
    int height = 0;
    if (type.atBytes()) {
        _sink->bytes('[', _items.at.takeBytes(length, "a byte array"_words));
        type.skipItem();
    } else {
        if (length > quint64(_items.at.left())) {
            failArchive(_items.at.offset(), {"an array of %@ elements"_words, {length}},
                        {"%@ bytes left"_words, {_items.at.left()}});
        }
        _sink->beginList();
        if (length == 0) type.skipItem();
        for (quint64 i = 0; i < length; ++i) {
            type.moveTo(element);
            height = qMax(height, value(type));
        }
        _sink->endList();
    }
    type.take();  // ']'
    return height;
}

int ArchiveWalker::structValue(TypeCursor& type) {
    type.skipName();
    _sink->beginList();
    int height = 0;
    while (type.peek() != '}') height = qMax(height, value(type));
    type.take();
    _sink->endList();
    return height;
}

int ArchiveWalker::numberGroups(FoundNumber& number) {
    if (atEndOfObject()) return 0;
    const QByteArrayView first = _items.groupType();
    if (first != "*") return values(first);
    const QByteArrayView code = _items.cString();
    _sink->beginGroup(first);
    code.isNull() ? _sink->nil('*') : _sink->bytes('*', code);
    _sink->endGroup();
    if (atEndOfObject()) return 0;
    const QByteArrayView second = _items.groupType();
    if (second == code) number = {numberKindOf(code), _items.at.offset()};
    return values(second);
}

QByteArrayView ArchiveWalker::text() {
    _items.groupOf('+', "a text"_words);
    const qint64 offset = _items.at.offset();
    const QByteArrayView text = _items.unsharedText();
    if (text.isNull()) failArchive(offset, "a text"_words, describeByte(archivetag::nil));
    if (!QUtf8StringView(text.data(), text.size()).isValidUtf8()) {
        failArchive(offset, "a text in UTF-8"_words, "other bytes"_words);
    }
    _sink->beginGroup("+");
    _sink->bytes('+', text);
    _sink->endGroup();
    return text;
}

int ArchiveWalker::collectionGroups(ClassFamily family) {
    const char code = family == ClassFamily::Set ? 'I' : 'i';
    _items.groupOf(code, "the count of a collection"_words);
    const quint64 elements = _items.takeCount(family);
    _sink->beginGroup(QByteArrayView(&code, 1));
    _sink->integer(code, qint64(family == ClassFamily::Dictionary ? elements / 2 : elements));
    _sink->endGroup();
    int height = 0;
    for (quint64 i = 0; i < elements; ++i) {
        height = qMax(height, element());
        if (_run) i += _run->pass(quint32(elements - i - 1));
    }
    return height;
}

int ArchiveWalker::element() {
    const uchar* const group = _items.at.at();
    const quint32 strings = _items.tables().strings.size();
    _items.groupOf('@', "an element of a collection"_words);
    const ObjectHead head = _items.objectHead();
    if (head.what == ObjectHead::Nil) {
        failArchive(head.offset, "an element of a collection"_words, describeByte(archivetag::nil));
    }
    _sink->beginGroup("@");
    const int height = objectAfterHead(head);
    _sink->endGroup();
    if (_run && head.what == ObjectHead::New) _run->learn(head, group, strings);
    return height;
}

}  // namespace sargan
