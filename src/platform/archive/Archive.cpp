#include "platform/archive/ArchiveTables.h"
#include "platform/archive/ArchiveWalker.h"

namespace sargan {

Archive::Archive() : _tables(std::make_unique<Tables>()) {}

Archive::~Archive() = default;

std::shared_ptr<const Archive> Archive::read(QByteArray bytes) {
    const std::shared_ptr<Archive> archive(new Archive);
    archive->_tables->bytes = std::move(bytes);
    ItemReader items(*archive->_tables);
    items.header();
    items.groupOf('@', "the root object"_words);
    const qint64 offset = items.at.offset();
    const ObjectHead head = items.objectHead();
    if (head.what == ObjectHead::Reference) failArchive(offset, "the root object"_words, "a reference"_words);
    NumberRun run(items);
    if (head.what == ObjectHead::New) ArchiveWalker(items, run).contents(head);
    archive->_tables->root = head.index;
    items.endOfFile();
    return archive;
}

ArchivedObject Archive::root() const {
    return objectAt(_tables->root);
}

const QByteArray& Archive::bytes() const {
    return _tables->bytes;
}

ArchivedObject Archive::objectAt(quint32 index) const {
    if (index >= _tables->objects.size() || !_tables->objects[index].isObject()) return {};
    return {shared_from_this(), index};
}

ArchiveHead readArchiveHead(const QByteArray& bytes) {
    Archive::Tables tables;
    tables.bytes = bytes;
    ItemReader items(tables);
    items.header();
    ArchiveHead found;
    found.rootClass = QString::fromUtf8(tables.classAt(items.rootArray().cls).name);
    found.count = quint32(items.takeCount(ClassFamily::Array));
    if (found.count == 0) return found;
    items.groupOf('@', "the first element"_words);
    const ObjectHead first = items.objectHead();
    if (first.what != ObjectHead::New)
        failArchive(first.offset, "the first element"_words, "no new object"_words);
    const ClassInfo info = tables.classAt(first.cls);
    found.recordClass = QString::fromUtf8(info.name);
    found.version = info.version;
    return found;
}

}  // namespace sargan
