#include "platform/archive/ArchiveReader.h"

#include <vector>

#include "platform/archive/SlotReader.h"

using namespace Qt::StringLiterals;

namespace sargan {

class ArchiveReader::Impl {
public:
    explicit Impl(QByteArray bytes);

    quint32 beginRootArray();
    Element beginElement(const char* className);
    void endElement();
    void endRootArray();

    /// Runs a read and adds to its error where in the records it happened.
    template <typename Read>
    auto located(Read read) {
        try {
            return read();
        } catch (const ArchiveError& error) {
            throw error.in(place());
        }
    }

    ItemReader& items() { return _items; }
    SlotReader& slotReader() { return _slotReader; }
    qint32 version() const { return _version; }
    void setSlot(const char* name) { _slot = name; }

private:
    void requireRecordClass(quint32 cls, const char* className, qint64 offset);
    QString place() const;

    std::shared_ptr<Archive> _archive;
    ItemReader _items;
    SlotReader _slotReader{_items, *_archive};
    ObjectHead _root;
    ObjectHead _record;
    quint32 _count = 0;
    quint32 _begun = 0;
    bool _inRecord = false;
    int _rootHeight = 0;
    std::vector<quint32> _records;
    quint32 _recordClass = noIndex;
    QByteArray _recordClassName;
    qint32 _version = 0;
    const char* _className = "";
    const char* _slot = nullptr;
};

ArchiveReader::Impl::Impl(QByteArray bytes)
    : _archive(new Archive), _items((_archive->_tables->bytes = std::move(bytes), *_archive->_tables)) {
    _items.header();
}

QString ArchiveReader::Impl::place() const {
    if (!_inRecord) return {};
    const QString record = u"%1 %2"_s.arg(QString::fromUtf8(_className)).arg(_begun - 1);
    return _slot ? u"%1, %2"_s.arg(record, QString::fromUtf8(_slot)) : record;
}

quint32 ArchiveReader::Impl::beginRootArray() {
    _root = _items.rootArray();
    _count = quint32(_items.takeCount(ClassFamily::Array));
    return _count;
}

void ArchiveReader::Impl::requireRecordClass(quint32 cls, const char* className, qint64 offset) {
    if (cls == _recordClass && _recordClassName == className) return;
    const ClassInfo info = _items.tables().classAt(cls);
    const bool rooted = info.super != noIndex && _items.entry(info.super).family() == ClassFamily::Object &&
                        _items.entry(cls).chainLength() == 2;
    if (info.name != className || !rooted) {
        failArchive(offset, {"an object of class %@ : NSObject"_words, {QString::fromUtf8(className)}},
                    {"one of class %@"_words, {ArchivePhrase::name(info.name)}});
    }
    _recordClass = cls;
    _recordClassName = className;
    _version = info.version;
}

ArchiveReader::Element ArchiveReader::Impl::beginElement(const char* className) {
    _className = className;
    _slot = nullptr;
    _inRecord = true;
    ++_begun;
    if (_begun > _count) {
        failArchive(_items.at.offset(), {"%@ elements"_words, {_count}}, "a call for one more"_words);
    }
    _items.groupOf('@', "an element of the root array"_words);
    const ObjectHead head = _items.objectHead();
    if (head.what == ObjectHead::Nil)
        failArchive(head.offset, "an element of the root array"_words, "nil"_words);
    if (head.what == ObjectHead::Reference) {
        const auto earlier = std::lower_bound(_records.begin(), _records.end(), head.index);
        if (earlier == _records.end() || *earlier != head.index) {
            failArchive(head.offset, "an element of the root array"_words,
                        "a reference to another object"_words);
        }
        requireRecordClass(_items.tables().classOfObject(head.index), className, head.offset);
        _inRecord = false;
        return {false, quint32(earlier - _records.begin())};
    }
    requireRecordClass(head.cls, className, head.offset);
    _record = head;
    _records.push_back(head.index);
    return {true, quint32(_records.size() - 1)};
}

void ArchiveReader::Impl::endElement() {
    _slot = nullptr;
    const int height = _slotReader.takeHeight() + 1;
    _items.objectEnd(_record, height);
    _rootHeight = qMax(_rootHeight, height);
    _inRecord = false;
}

void ArchiveReader::Impl::endRootArray() {
    if (_begun != _count) {
        failArchive(_items.at.offset(), {"%@ elements"_words, {_count}}, _begun);
    }
    _items.objectEnd(_root, _rootHeight + 1);
    _archive->_tables->root = _root.index;
    _items.endOfFile();
}

ArchiveReader::ArchiveReader(QByteArray bytes) : _impl(std::make_unique<Impl>(std::move(bytes))) {}

ArchiveReader::~ArchiveReader() = default;

quint32 ArchiveReader::beginRootArray() {
    return _impl->beginRootArray();
}

ArchiveReader::Element ArchiveReader::beginElement(const char* className) {
    return _impl->located([&] { return _impl->beginElement(className); });
}

qint32 ArchiveReader::elementVersion() const {
    return _impl->version();
}

void ArchiveReader::endElement() {
    _impl->located([&] { _impl->endElement(); });
}

void ArchiveReader::endRootArray() {
    _impl->endRootArray();
}

void ArchiveReader::atSlot(const char* name) {
    _impl->setSlot(name);
}

qint32 ArchiveReader::readInt() {
    return _impl->located([&] {
        _impl->items().groupOf('i', "an integer"_words);
        return _impl->items().at.takeInt32("an integer"_words);
    });
}

float ArchiveReader::readFloat() {
    return _impl->located([&] {
        _impl->items().groupOf('f', "a number"_words);
        return _impl->items().at.takeFloat();
    });
}

QString ArchiveReader::readText(ArchivedObject& kept) {
    return _impl->located([&] { return _impl->slotReader().text(kept); });
}

Moment ArchiveReader::readMoment(ArchivedObject& kept) {
    return _impl->located([&] { return _impl->slotReader().moment(kept); });
}

NumberArray ArchiveReader::readNumbers(ArchivedObject& kept) {
    return _impl->located([&] { return _impl->slotReader().numbers(kept); });
}

ArchivedObject ArchiveReader::readObject() {
    return _impl->located([&] { return _impl->slotReader().object(); });
}

qint64 ArchiveReader::offset() const {
    return _impl->items().at.offset();
}

}  // namespace sargan
