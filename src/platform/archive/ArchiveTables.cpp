#include "platform/archive/ArchiveTables.h"

namespace sargan {

namespace {

struct KnownClass {
    const char* name;
    ClassFamily family;
};

constexpr KnownClass knownClasses[] = {
    {"NSObject", ClassFamily::Object},
    {"NSString", ClassFamily::String},
    {"NSMutableString", ClassFamily::String},
    {"NSArray", ClassFamily::Array},
    {"NSMutableArray", ClassFamily::Array},
    {"NSDictionary", ClassFamily::Dictionary},
    {"NSSet", ClassFamily::Set},
    {"NSMutableDictionary", ClassFamily::Dictionary},
    {"NSMutableSet", ClassFamily::Set},
    {"NSNumber", ClassFamily::Number},
    {"NSValue", ClassFamily::Value},
    {"NSDate", ClassFamily::Date},
    {"NSData", ClassFamily::Data},
    {"NSMutableData", ClassFamily::Data},
    {"NSNull", ClassFamily::Null},
    {"NSURL", ClassFamily::Url},
    {"NSColor", ClassFamily::Color},
    {"NSFont", ClassFamily::Font},
};

quint32 referenceIndex(ByteCursor& at) {
    return quint32(at.takeSigned("a reference"_words) - archivetag::referenceBase);
}

}  // namespace

ClassFamily knownFamily(QByteArrayView className) {
    for (const KnownClass& known : knownClasses) {
        if (className == known.name) return known.family;
    }
    return ClassFamily::Unknown;
}

QByteArrayView Archive::Tables::stringAt(quint32 index) const {
    ByteCursor at = cursorAt(qint64(strings[index] & ~checkedType));
    const quint64 length = at.takeUnsigned("a length"_words);
    return at.takeBytes(length, "a string"_words);
}

ClassInfo Archive::Tables::classAt(quint32 index) const {
    ByteCursor at = cursorAt(objects[index].offset() + 1);
    ClassInfo info;
    if (at.peek("a class name"_words) == archivetag::newItem) {
        at.take("a class name"_words);
        const quint64 length = at.takeUnsigned("a length"_words);
        info.name = at.takeBytes(length, "a class name"_words);
    } else {
        info.name = stringAt(referenceIndex(at));
    }
    info.version = at.takeInt32("a class version"_words);
    const uchar head = at.peek("a class"_words);
    if (head == archivetag::newItem) {
        info.super = index + 1;
    } else if (head != archivetag::nil) {
        info.super = referenceIndex(at);
    }
    return info;
}

quint32 Archive::Tables::classOfObject(quint32 index) const {
    ByteCursor at = cursorAt(objects[index].offset() + 1);
    return at.peek("a class"_words) == archivetag::newItem ? index + 1 : referenceIndex(at);
}

}  // namespace sargan
