#include "platform/archive/ArchiveWriter.h"

#include <map>
#include <stdexcept>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/NumberWriter.h"
#include "platform/archive/ObjectCopier.h"

namespace sargan {

namespace {

constexpr qsizetype longestSharedText = 7;

/// Up to seven ASCII characters in one number, which no two different texts share.
quint64 shortTextKey(const QString& text) {
    quint64 key = quint64(text.size());
    for (const QChar c : text) key = key << 8 | c.unicode();
    return key;
}

bool isSharedByContent(const QString& text) {
    return text.size() <= longestSharedText &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

}  // namespace

class ArchiveWriter::Impl {
public:
    void beginRootArray(quint32 count);
    void endRootArray();
    quint32 beginObject(const ArchiveClass& cls);
    bool beginInstance(const void* instance, const ArchiveClass& cls);
    void endObject();
    void text(const QString& text);
    void moment(const Moment& moment);
    void numbers(const NumberArray& numbers);
    void bytes(const QByteArray& bytes);
    void object(const ArchivedObject& object);
    void nil();
    void reference(quint32 index);
    QByteArray take();

    ArchiveOutput output;

private:
    struct WrittenClass {
        ArchiveClass cls;
        quint32 index;
    };
    struct TextInstance {
        QString text;
        quint32 index;
    };
    quint32 beginGroupObject(const ArchiveClass& cls);
    void archivedClass(const ArchiveClass& cls);
    void fullText(const QString& text);
    void copy(const ArchivedObject& object);
    void elementDone();

    NumberWriter _numberWriter{output};
    std::map<const Archive*, std::unique_ptr<ObjectCopier>> _copiers;
    std::vector<WrittenClass> _classes;  ///< a handful, found by address
    QHash<quint64, quint32> _shortTexts;
    QHash<const QString*, TextInstance> _textInstances;
    QHash<const void*, quint32> _instances;
    int _open = 0;
    bool _hasRootArray = false;
    quint32 _awaited = 0;
};

void ArchiveWriter::Impl::elementDone() {
    if (!_hasRootArray || _open != 1) return;
    if (_awaited == 0) throw std::logic_error("more elements in an archive than were announced");
    --_awaited;
}

quint32 ArchiveWriter::Impl::beginGroupObject(const ArchiveClass& cls) {
    output.simpleType('@');
    const quint32 index = output.newItem();
    output.byte(archivetag::newItem);
    archivedClass(cls);
    return index;
}

void ArchiveWriter::Impl::archivedClass(const ArchiveClass& cls) {
    for (const WrittenClass& written : _classes) {
        if (written.cls.name == cls.name && written.cls.version == cls.version &&
            written.cls.super == cls.super) {
            return output.reference(written.index);
        }
    }
    std::vector<ArchiveOutput::ClassLink> chain;
    for (const ArchiveClass* link = &cls; link; link = link->super)
        chain.push_back({link->name, link->version});
    _classes.push_back({cls, output.archivedClass(chain)});
}

void ArchiveWriter::Impl::beginRootArray(quint32 count) {
    beginObject(archiveclass::mutableArray);
    output.simpleType('i');
    output.integer(count);
    _hasRootArray = true;
    _awaited = count;
}

void ArchiveWriter::Impl::endRootArray() {
    if (_awaited != 0) throw std::logic_error("fewer elements in an archive than were announced");
    endObject();
}

quint32 ArchiveWriter::Impl::beginObject(const ArchiveClass& cls) {
    const quint32 index = beginGroupObject(cls);
    ++_open;
    return index;
}

bool ArchiveWriter::Impl::beginInstance(const void* instance, const ArchiveClass& cls) {
    const auto known = _instances.constFind(instance);
    if (known != _instances.constEnd()) {
        reference(*known);
        return false;
    }
    _instances.insert(instance, beginObject(cls));
    return true;
}

void ArchiveWriter::Impl::endObject() {
    if (_open == 0) throw std::logic_error("the end of an object that was not begun");
    output.byte(archivetag::end);
    --_open;
    elementDone();
}

void ArchiveWriter::Impl::text(const QString& text) {
    if (text.isNull()) return nil();
    if (isSharedByContent(text)) {
        const quint64 key = shortTextKey(text);
        const auto known = _shortTexts.constFind(key);
        if (known != _shortTexts.constEnd()) return reference(*known);
        _shortTexts.insert(key, output.itemCount());
        return fullText(text);
    }
    // The copy keeps the characters alive, so that another text at the same address is told apart by them.
    const auto known = _textInstances.constFind(&text);
    if (known != _textInstances.constEnd() && known->text.constData() == text.constData()) {
        return reference(known->index);
    }
    _textInstances.insert(&text, {text, output.itemCount()});
    fullText(text);
}

void ArchiveWriter::Impl::fullText(const QString& text) {
    beginGroupObject(archiveclass::string);
    output.simpleType('+');
    output.unshared(text.toUtf8());
    output.byte(archivetag::end);
    elementDone();
}

void ArchiveWriter::Impl::moment(const Moment& moment) {
    if (!moment.isPresent()) return nil();
    beginGroupObject(archiveclass::date);
    output.simpleType('d');
    output.realDouble(moment.seconds());
    output.byte(archivetag::end);
    elementDone();
}

void ArchiveWriter::Impl::numbers(const NumberArray& numbers) {
    if (numbers.isAbsent()) return nil();
    beginGroupObject(archiveclass::mutableArray);
    output.simpleType('i');
    output.integer(numbers.size());
    _numberWriter.elements(numbers, [this](const ArchivedObject& kept) { copy(kept); });
    output.byte(archivetag::end);
    elementDone();
}

void ArchiveWriter::Impl::bytes(const QByteArray& bytes) {
    beginGroupObject(archiveclass::data);
    output.simpleType('i');
    output.integer(bytes.size());
    output.shared('[' + QByteArray::number(bytes.size()) + "c]");
    output.raw(bytes);
    output.byte(archivetag::end);
    elementDone();
}

void ArchiveWriter::Impl::copy(const ArchivedObject& object) {
    output.simpleType('@');
    std::unique_ptr<ObjectCopier>& copier = _copiers[object.archive().get()];
    if (!copier) {
        copier = std::make_unique<ObjectCopier>(output, object.archive(), *object.archive()->_tables);
    }
    copier->write(object.index());
}

void ArchiveWriter::Impl::object(const ArchivedObject& object) {
    if (object.isNil()) return nil();
    copy(object);
    elementDone();
}

void ArchiveWriter::Impl::nil() {
    output.simpleType('@');
    output.byte(archivetag::nil);
    elementDone();
}

void ArchiveWriter::Impl::reference(quint32 index) {
    output.simpleType('@');
    output.reference(index);
    elementDone();
}

QByteArray ArchiveWriter::Impl::take() {
    if (_open != 0) throw std::logic_error("an archive taken before its objects were ended");
    return output.take();
}

ArchiveWriter::ArchiveWriter() : _impl(std::make_unique<Impl>()) {}

ArchiveWriter::~ArchiveWriter() = default;

void ArchiveWriter::reserve(qsizetype bytes) {
    _impl->output.ensure(bytes);
}

void ArchiveWriter::beginRootArray(quint32 count) {
    _impl->beginRootArray(count);
}

void ArchiveWriter::endRootArray() {
    _impl->endRootArray();
}

void ArchiveWriter::beginObject(const ArchiveClass& cls) {
    _impl->beginObject(cls);
}

bool ArchiveWriter::beginInstance(const void* instance, const ArchiveClass& cls) {
    return _impl->beginInstance(instance, cls);
}

void ArchiveWriter::endObject() {
    _impl->endObject();
}

void ArchiveWriter::writeInt(qint32 value) {
    _impl->output.simpleType('i');
    _impl->output.integer(value);
}

void ArchiveWriter::writeFloat(float value) {
    _impl->output.simpleType('f');
    _impl->output.realFloat(value);
}

void ArchiveWriter::writeText(const QString& text) {
    _impl->text(text);
}

void ArchiveWriter::writeMoment(const Moment& moment) {
    _impl->moment(moment);
}

void ArchiveWriter::writeNumbers(const NumberArray& numbers) {
    _impl->numbers(numbers);
}

void ArchiveWriter::writeBytes(const QByteArray& bytes) {
    _impl->bytes(bytes);
}

void ArchiveWriter::writeObject(const ArchivedObject& object) {
    _impl->object(object);
}

void ArchiveWriter::writeNil() {
    _impl->nil();
}

void ArchiveWriter::writeByteGroup(qint8 value) {
    _impl->output.simpleType('c');
    _impl->output.byte(uchar(value));
}

void ArchiveWriter::writeFloatsGroup(std::initializer_list<float> values) {
    _impl->output.shared(QByteArray(qsizetype(values.size()), 'f'));
    for (const float value : values) _impl->output.realFloat(value);
}

QByteArray ArchiveWriter::take() {
    QByteArray bytes = _impl->take();
    _impl = std::make_unique<Impl>();
    return bytes;
}

QByteArray ArchiveWriter::rewrite(const Archive& archive) {
    ArchiveWriter writer;
    writer.reserve(archive.bytes().size());
    writer.writeObject(archive.root());
    return writer.take();
}

}  // namespace sargan
