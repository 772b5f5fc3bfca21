#include "platform/archive/ObjectCopier.h"

namespace sargan {

void ObjectCopier::write(quint32 index) {
    reference(index);
}

void ObjectCopier::reference(quint32 index) {
    const auto written = _written.constFind(index);
    if (written != _written.constEnd()) return _output.reference(*written);
    // Objects that hold one another by reference go no deeper than the height that reading allowed.
    ItemReader items(_tables, index);
    ArchiveWalker(items, this).object();
}

bool ObjectCopier::beginObject(quint32 index, quint32 cls) {
    const auto written = _written.constFind(index);
    if (written != _written.constEnd()) {
        _output.reference(*written);
        return false;
    }
    _written.insert(index, _output.newItem());
    _output.byte(archivetag::newItem);
    classValue(cls);
    return true;
}

void ObjectCopier::endObject() {
    _output.byte(archivetag::end);
}

void ObjectCopier::beginGroup(QByteArrayView type) {
    _output.shared(type);
}

void ObjectCopier::nil(char) {
    _output.byte(archivetag::nil);
}

void ObjectCopier::integer(char code, qint64 value) {
    if (code == 'c' || code == 'C' || code == 'B') return _output.byte(uchar(value));
    const bool isSigned = code >= 'a';
    isSigned ? _output.integer(value) : _output.unsignedInteger(quint64(value));
}

void ObjectCopier::realFloat(float value) {
    _output.realFloat(value);
}

void ObjectCopier::realDouble(double value) {
    _output.realDouble(value);
}

void ObjectCopier::bytes(char code, QByteArrayView value) {
    if (code == '+') return _output.unshared(value);
    if (code == '*') return _output.cString(value);
    code == '[' ? _output.raw(value) : _output.shared(value);
}

void ObjectCopier::classValue(quint32 cls) {
    const auto written = _writtenClasses.constFind(cls);
    if (written != _writtenClasses.constEnd()) return _output.reference(*written);
    std::vector<ArchiveOutput::ClassLink> chain;
    for (quint32 link = cls; link != noIndex;) {
        const ClassInfo info = _tables.classAt(link);
        chain.push_back({info.name, info.version});
        link = info.super;
    }
    _writtenClasses.insert(cls, _output.archivedClass(chain));
}

}  // namespace sargan
