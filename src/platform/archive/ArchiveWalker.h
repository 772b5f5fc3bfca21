#pragma once

#include "platform/archive/NumberRun.h"
#include "platform/archive/TypeEncoding.h"

namespace sargan {

/// Receives what an ArchiveWalker passes over. Every function may stay empty.
class ValueSink {
public:
    virtual ~ValueSink() = default;

    /// A new object. When this returns false, the object is passed over without further calls for it.
    virtual bool beginObject(quint32 /*index*/, quint32 /*cls*/) { return true; }
    virtual void endObject() {}
    virtual void beginGroup(QByteArrayView /*type*/) {}
    virtual void endGroup() {}

    virtual void nil(char /*code*/) {}
    /// Any integer type; values of Q past 63 bits arrive as their bit pattern.
    virtual void integer(char /*code*/, qint64 /*value*/) {}
    virtual void realFloat(float /*value*/) {}
    virtual void realDouble(double /*value*/) {}
    /// '+', '*', ':' and '%', and byte arrays with code '['.
    virtual void bytes(char /*code*/, QByteArrayView /*value*/) {}
    virtual void classValue(quint32 /*cls*/) {}
    virtual void reference(quint32 /*index*/) {}
    virtual void beginList() {}
    virtual void endList() {}
};

/// Steps over groups and objects of any class, checking in the first pass all that can be checked without
/// knowing them, and the layouts of texts and collections. Heights count nested objects through references.
class ArchiveWalker {
public:
    /// `depth`: how many objects are open around the place where the walk begins.
    explicit ArchiveWalker(ItemReader& items, ValueSink* sink = nullptr, int depth = 0);
    /// A first pass over a whole archive, with a quick way through arrays of numbers.
    ArchiveWalker(ItemReader& items, NumberRun& run);

    /// An object value of a group "@". Returns its height; 0 for nil.
    int object();
    /// What follows a head that objectHead() gave, up to and with the end byte.
    int contents(const ObjectHead& head);
    /// The text group that a string begins with: valid UTF-8, never nil.
    QByteArrayView text();
    /// Groups until the end byte, which is not taken.
    int groups();

private:
    int group();
    int values(QByteArrayView type);
    int value(TypeCursor& type);
    int arrayValue(TypeCursor& type);
    int structValue(TypeCursor& type);
    void textValue(char code);
    void classValue();
    int objectAfterHead(const ObjectHead& head);
    void simpleInteger(char code);

    struct FoundNumber {
        NumberKind kind = NumberKind::Kept;
        qint64 valueOffset = 0;
    };
    int knownGroups(ObjectEntry cls, FoundNumber& number);
    int numberGroups(FoundNumber& number);
    int collectionGroups(ClassFamily family);
    int element();
    bool atEndOfObject() {
        return _items.at.peek("a group or the end of an object"_words) == archivetag::end;
    }

    ItemReader& _items;
    ValueSink* _sink;
    NumberRun* _run = nullptr;
    int _depth;
};

/// The kind of number that a type letter in a number object stands for; Kept for any other text.
NumberKind numberKindOf(QByteArrayView typeCode);

}  // namespace sargan
