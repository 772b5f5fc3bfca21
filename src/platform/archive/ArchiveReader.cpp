#include "platform/archive/ArchiveReader.h"

#include <QHash>
#include <vector>

#include "platform/archive/ArchiveWalker.h"
#include "platform/archive/NumberDecoder.h"

using namespace Qt::StringLiterals;

namespace sargan {

namespace {

/// Values at least this long in the file are remembered, so that reading through many references to one
/// takes no longer than reading the file; shorter ones are decoded again, or remembered up to a limit.
constexpr qint64 longValue = 64;
constexpr qsizetype mostShortValues = 65536;
/// Objects around a slot's value: the root array and the record.
constexpr int slotDepth = 2;

}  // namespace

class ArchiveReader::Impl {
public:
    explicit Impl(QByteArray bytes);

    quint32 beginRootArray();
    Element beginElement(const char* className);
    void endElement();
    void endRootArray();

    QString text(ArchivedObject& kept);
    Moment moment(ArchivedObject& kept);
    NumberArray numbers(ArchivedObject& kept);
    ArchivedObject object();

    /// Runs a read and adds to its error where in the records it happened.
    template <typename Read>
    auto located(Read read) {
        try {
            return read();
        } catch (const ArchiveError& error) {
            throw ArchiveError(error.offset(), error.problem(), place());
        }
    }

    ItemReader& items() { return _items; }
    qint32 version() const { return _version; }
    void setSlot(const char* name) { _slot = name; }

private:
    /// A slot's object: complete in the tables when new and `whole`, else its head only.
    ObjectHead slotHead();
    quint32 classOf(const ObjectHead& head) const;
    ArchivedObject keep(const ObjectHead& head);
    void passOver(const ObjectHead& head);
    void grow(int height) { _recordHeight = qMax(_recordHeight, height); }
    void requireUnknown(const ObjectHead& head, quint32 cls, const char* expected) const;
    QString textContents(const ObjectHead& head);
    NumberArray arrayContents(const ObjectHead& head);
    void finishContents(const ObjectHead& head, int height, bool derived);
    QString textByReference(quint32 index);
    NumberArray arrayByReference(quint32 index);
    std::optional<double> dateOf(quint32 index) const;
    void requireRecordClass(quint32 cls, const char* className, qint64 offset);
    QString place() const;

    std::shared_ptr<Archive> _archive;
    ItemReader _items;
    NumberRun _run{_items};
    ObjectHead _root;
    ObjectHead _record;
    quint32 _count = 0;
    quint32 _begun = 0;
    bool _inRecord = false;
    int _rootHeight = 0;
    int _recordHeight = 0;
    std::vector<quint32> _records;
    quint32 _recordClass = noIndex;
    qint32 _version = 0;
    const char* _className = "";
    const char* _slot = nullptr;
    QHash<quint32, QString> _texts;
    QHash<quint32, NumberArray> _arrays;
    qsizetype _shortArrays = 0;  ///< among those remembered
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
    if (cls == _recordClass) return;
    const ClassInfo info = _items.tables().classAt(cls);
    const bool rooted = info.super != noIndex && _items.entry(info.super).family() == ClassFamily::Object &&
                        _items.entry(cls).chainLength() == 2;
    if (info.name != className || !rooted) {
        failArchive(offset, u"an object of class %1 : NSObject"_s.arg(QString::fromUtf8(className)),
                    u"one of class %1"_s.arg(QString::fromUtf8(info.name)));
    }
    _recordClass = cls;
    _version = info.version;
}

ArchiveReader::Element ArchiveReader::Impl::beginElement(const char* className) {
    _className = className;
    _slot = nullptr;
    _inRecord = true;
    ++_begun;
    if (_begun > _count) {
        failArchive(_items.at.offset(), u"%1 elements"_s.arg(_count), u"a call for one more"_s);
    }
    _items.groupOf('@', "an element of the root array");
    const ObjectHead head = _items.objectHead();
    if (head.what == ObjectHead::Nil) failArchive(head.offset, "an element of the root array", u"nil"_s);
    if (head.what == ObjectHead::Reference) {
        const auto earlier = std::lower_bound(_records.begin(), _records.end(), head.index);
        if (earlier == _records.end() || *earlier != head.index) {
            failArchive(head.offset, "an element of the root array", u"a reference to another object"_s);
        }
        requireRecordClass(_items.tables().classOfObject(head.index), className, head.offset);
        _inRecord = false;
        return {false, quint32(earlier - _records.begin())};
    }
    requireRecordClass(head.cls, className, head.offset);
    _record = head;
    _recordHeight = 0;
    _records.push_back(head.index);
    return {true, quint32(_records.size() - 1)};
}

void ArchiveReader::Impl::endElement() {
    _slot = nullptr;
    _items.objectEnd(_record, _recordHeight + 1);
    _rootHeight = qMax(_rootHeight, _recordHeight + 1);
    _inRecord = false;
}

void ArchiveReader::Impl::endRootArray() {
    if (_begun != _count) {
        failArchive(_items.at.offset(), u"%1 elements"_s.arg(_count), u"%1"_s.arg(_begun));
    }
    _items.objectEnd(_root, _rootHeight + 1);
    _archive->_tables->root = _root.index;
    _items.endOfFile();
}

ObjectHead ArchiveReader::Impl::slotHead() {
    _items.groupOf('@', "an object");
    return _items.objectHead();
}

quint32 ArchiveReader::Impl::classOf(const ObjectHead& head) const {
    return head.what == ObjectHead::New ? head.cls : _items.tables().classOfObject(head.index);
}

void ArchiveReader::Impl::passOver(const ObjectHead& head) {
    if (head.what == ObjectHead::New) ArchiveWalker(_items, nullptr, slotDepth).contents(head);
    grow(_items.entry(head.index).height());
}

ArchivedObject ArchiveReader::Impl::keep(const ObjectHead& head) {
    passOver(head);
    return _archive->objectAt(head.index);
}

void ArchiveReader::Impl::requireUnknown(const ObjectHead& head, quint32 cls, const char* expected) const {
    const ObjectEntry entry = _items.entry(cls);
    if (entry.family() == ClassFamily::Unknown || entry.isDerived()) return;
    failArchive(head.offset, expected,
                u"an object of class %1"_s.arg(QString::fromUtf8(_items.tables().classAt(cls).name)));
}

void ArchiveReader::Impl::finishContents(const ObjectHead& head, int height, bool derived) {
    if (derived) height = qMax(height, ArchiveWalker(_items, nullptr, slotDepth + 1).groups());
    _items.objectEnd(head, height + 1);
    grow(height + 1);
}

QString ArchiveReader::Impl::textContents(const ObjectHead& head) {
    const QByteArrayView text = ArchiveWalker(_items).text();
    finishContents(head, 0, _items.entry(head.cls).isDerived());
    return QString::fromUtf8(text);
}

QString ArchiveReader::Impl::textByReference(quint32 index) {
    grow(_items.entry(index).height());
    const auto known = _texts.constFind(index);
    if (known != _texts.constEnd()) return *known;
    const QString text = _archive->objectAt(index).asText();
    if (text.size() >= longValue || _texts.size() < mostShortValues) _texts.insert(index, text);
    return text;
}

QString ArchiveReader::Impl::text(ArchivedObject& kept) {
    kept = {};
    const ObjectHead head = slotHead();
    if (head.what == ObjectHead::Nil) return {};
    const quint32 cls = classOf(head);
    if (_items.entry(cls).family() == ClassFamily::String) {
        return head.what == ObjectHead::New ? textContents(head) : textByReference(head.index);
    }
    requireUnknown(head, cls, "a text");
    kept = keep(head);
    return {};
}

std::optional<double> ArchiveReader::Impl::dateOf(quint32 index) const {
    ItemReader items(_items.tables(), index);
    items.objectHead();
    if (items.at.peek("a group") == archivetag::end || items.groupType() != "d") return std::nullopt;
    return items.at.takeDouble();
}

Moment ArchiveReader::Impl::moment(ArchivedObject& kept) {
    kept = {};
    const ObjectHead head = slotHead();
    if (head.what == ObjectHead::Nil) return {};
    const quint32 cls = classOf(head);
    const ObjectEntry entry = _items.entry(cls);
    if (entry.family() != ClassFamily::Date) {
        requireUnknown(head, cls, "a date");
        kept = keep(head);
        return {};
    }
    if (!entry.isDerived() && head.what == ObjectHead::New) {
        _items.groupOf('d', "a date");
        const double seconds = _items.at.takeDouble();
        finishContents(head, 0, false);
        return Moment::fromSeconds(seconds);
    }
    passOver(head);
    if (entry.isDerived()) kept = _archive->objectAt(head.index);
    const std::optional<double> seconds = dateOf(head.index);
    if (!seconds && !entry.isDerived()) failArchive(head.offset, "a date", u"one without seconds"_s);
    return seconds ? Moment::fromSeconds(*seconds) : Moment();
}

NumberArray ArchiveReader::Impl::arrayContents(const ObjectHead& head) {
    const qint64 start = head.offset;
    int height = 0;
    NumberArray numbers = NumberDecoder(_items, &_run, *_archive, slotDepth + 1).elements(height);
    finishContents(head, height, _items.entry(head.cls).isDerived());
    if (_items.at.offset() - start >= longValue) _arrays.insert(head.index, numbers);
    return numbers;
}

NumberArray ArchiveReader::Impl::arrayByReference(quint32 index) {
    grow(_items.entry(index).height());
    const auto known = _arrays.constFind(index);
    if (known != _arrays.constEnd()) return *known;
    ItemReader items(_items.tables(), index);
    const ObjectHead head = items.objectHead();
    int height = 0;
    const NumberArray numbers = NumberDecoder(items, nullptr, *_archive, slotDepth + 1).elements(height);
    if (items.at.offset() - head.offset >= longValue || _shortArrays++ < mostShortValues) {
        _arrays.insert(index, numbers);
    }
    return numbers;
}

NumberArray ArchiveReader::Impl::numbers(ArchivedObject& kept) {
    kept = {};
    const ObjectHead head = slotHead();
    if (head.what == ObjectHead::Nil) return {};
    const quint32 cls = classOf(head);
    const ObjectEntry entry = _items.entry(cls);
    if (entry.family() != ClassFamily::Array) {
        requireUnknown(head, cls, "an array of numbers");
        kept = keep(head);
        return {};
    }
    const NumberArray numbers =
        head.what == ObjectHead::New ? arrayContents(head) : arrayByReference(head.index);
    if (entry.isDerived()) kept = _archive->objectAt(head.index);
    return numbers;
}

ArchivedObject ArchiveReader::Impl::object() {
    const ObjectHead head = slotHead();
    return head.what == ObjectHead::Nil ? ArchivedObject() : keep(head);
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
        _impl->items().groupOf('i', "an integer");
        return _impl->items().at.takeInt32("an integer");
    });
}

float ArchiveReader::readFloat() {
    return _impl->located([&] {
        _impl->items().groupOf('f', "a number");
        return _impl->items().at.takeFloat();
    });
}

QString ArchiveReader::readText(ArchivedObject& kept) {
    return _impl->located([&] { return _impl->text(kept); });
}

Moment ArchiveReader::readMoment(ArchivedObject& kept) {
    return _impl->located([&] { return _impl->moment(kept); });
}

NumberArray ArchiveReader::readNumbers(ArchivedObject& kept) {
    return _impl->located([&] { return _impl->numbers(kept); });
}

ArchivedObject ArchiveReader::readObject() {
    return _impl->located([&] { return _impl->object(); });
}

qint64 ArchiveReader::offset() const {
    return _impl->items().at.offset();
}

}  // namespace sargan
