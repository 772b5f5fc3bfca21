#include "platform/archive/ArchivedObject.h"

#include <QSet>

#include "platform/archive/ArchiveWalker.h"

namespace sargan {

namespace {

ArchivedClass toArchivedClass(const ClassInfo& info) {
    return {QString::fromUtf8(info.name), info.version};
}

/// Collects the groups of one object as values; objects in them become views.
class GroupCollector : public ValueSink {
public:
    explicit GroupCollector(const Archive& archive, const Archive::Tables& tables)
        : _archive(archive), _tables(tables) {}

    QList<ArchivedGroup> groups;

    bool beginObject(quint32 index, quint32) override {
        const bool inner = std::exchange(_begun, true);
        if (inner) reference(index);
        return !inner;
    }
    void beginGroup(QByteArrayView type) override { groups.append(ArchivedGroup{type.toByteArray(), {}}); }
    void nil(char) override { add(std::monostate()); }
    void integer(char, qint64 value) override { add(value); }
    void realFloat(float value) override { add(double(value)); }
    void realDouble(double value) override { add(value); }
    void bytes(char, QByteArrayView value) override { add(QByteArray(value.data(), value.size())); }
    void classValue(quint32 cls) override { add(toArchivedClass(_tables.classAt(cls))); }
    void reference(quint32 index) override {
        add(std::make_shared<const ArchivedObject>(_archive.objectAt(index)));
    }
    void beginList() override { _lists.emplace_back(); }
    void endList() override {
        QList<ArchivedValue> list = std::move(_lists.back());
        _lists.pop_back();
        add(std::move(list));
    }

private:
    template <typename T>
    void add(T value) {
        QList<ArchivedValue>& values = _lists.empty() ? groups.last().values : _lists.back();
        values.emplaceBack().value = std::move(value);
    }

    const Archive& _archive;
    const Archive::Tables& _tables;
    std::vector<QList<ArchivedValue>> _lists;
    bool _begun = false;
};

/// Collects the elements of an array. A class derived from an array may have more objects after them.
class ElementCollector : public ValueSink {
public:
    explicit ElementCollector(const Archive& archive) : _archive(archive) {}

    QList<ArchivedObject> elements;

    bool beginObject(quint32 index, quint32) override {
        const bool inner = std::exchange(_begun, true);
        if (inner) reference(index);
        return !inner;
    }
    void integer(char, qint64 value) override {
        if (_count < 0) _count = value;
    }
    void reference(quint32 index) override {
        if (elements.size() < _count) elements.append(_archive.objectAt(index));
    }

private:
    const Archive& _archive;
    qint64 _count = -1;
    bool _begun = false;
};

/// Remembers the first picture it passes, and the objects that are only referred to.
class PictureFinder : public ValueSink {
public:
    QByteArrayView picture;
    std::vector<quint32> references;
    QSet<quint32> passed;

    bool beginObject(quint32 index, quint32) override {
        const bool isNew = !passed.contains(index);
        passed.insert(index);
        return isNew;
    }
    void bytes(char, QByteArrayView value) override {
        if (picture.isNull() && beginsLikePicture(value)) picture = value;
    }
    void reference(quint32 index) override { references.push_back(index); }
};

}  // namespace

QList<ArchivedClass> ArchivedObject::classes() const {
    QList<ArchivedClass> chain;
    if (isNil()) return chain;
    const Archive::Tables& tables = *_archive->_tables;
    for (quint32 cls = tables.classOfObject(_index); cls != noIndex;) {
        const ClassInfo info = tables.classAt(cls);
        chain.append(toArchivedClass(info));
        cls = info.super;
    }
    return chain;
}

QString ArchivedObject::className() const {
    if (isNil()) return {};
    const Archive::Tables& tables = *_archive->_tables;
    return QString::fromUtf8(tables.classAt(tables.classOfObject(_index)).name);
}

bool ArchivedObject::isKindOf(const char* name) const {
    if (isNil()) return false;
    const Archive::Tables& tables = *_archive->_tables;
    for (quint32 cls = tables.classOfObject(_index); cls != noIndex;) {
        const ClassInfo info = tables.classAt(cls);
        if (info.name == name) return true;
        cls = info.super;
    }
    return false;
}

QList<ArchivedGroup> ArchivedObject::groups() const {
    if (isNil()) return {};
    const Archive::Tables& tables = *_archive->_tables;
    ItemReader items(tables, _index);
    GroupCollector collector(*_archive, tables);
    ArchiveWalker(items, &collector).object();
    return collector.groups;
}

QString ArchivedObject::asText() const {
    if (isNil()) return {};
    const Archive::Tables& tables = *_archive->_tables;
    ItemReader items(tables, _index);
    const ObjectHead head = items.objectHead();
    if (items.entry(head.cls).family() != ClassFamily::String) return {};
    items.groupOf('+', "a text"_words);
    const QByteArrayView text = items.unsharedText();
    return QString::fromUtf8(text);
}

QList<ArchivedObject> ArchivedObject::asArray() const {
    if (isNil()) return {};
    const Archive::Tables& tables = *_archive->_tables;
    if (tables.objects[tables.classOfObject(_index)].family() != ClassFamily::Array) return {};
    ItemReader items(tables, _index);
    ElementCollector collector(*_archive);
    ArchiveWalker(items, &collector).object();
    return collector.elements;
}

QByteArray ArchivedObject::pictureBytes() const {
    if (isNil()) return {};
    PictureFinder finder;
    finder.references.push_back(_index);
    while (!finder.references.empty() && finder.picture.isNull()) {
        const quint32 index = finder.references.back();
        finder.references.pop_back();
        if (finder.passed.contains(index)) continue;
        ItemReader items(*_archive->_tables, index);
        ArchiveWalker(items, &finder).object();
    }
    return finder.picture.toByteArray();
}

bool beginsLikePicture(QByteArrayView bytes) {
    using namespace std::string_view_literals;
    for (const auto start : {"MM\0*"sv, "II*\0"sv, "\x89PNG"sv, "\xff\xd8\xff"sv}) {
        if (bytes.startsWith(QByteArrayView(start.data(), qsizetype(start.size())))) return true;
    }
    return false;
}

}  // namespace sargan
