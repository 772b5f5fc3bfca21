#include "platform/document/Document.h"

#include <QFileInfo>

#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentError.h"
#include "platform/files/DocumentLock.h"

namespace sargan {

Document::Document(const DocumentKind& kind, Desk& desk) : _kind(kind), _desk(desk) {}

Document::~Document() = default;

QString Document::displayName() const {
    return _path.isEmpty() ? _untitledName : QFileInfo(_path).fileName();
}

void Document::setReadOnly(bool readOnly) {
    if (_readOnly == readOnly) return;
    _readOnly = readOnly;
    Q_EMIT fileChanged();
}

void Document::takeFile(const QString& path, const ReadResult& file) {
    try {
        readBytes(file.bytes, _kind.currentTypeName(_desk));
    } catch (const ArchiveError& error) {
        throw DocumentError(error, path);
    }
    _path = QFileInfo(path).absoluteFilePath();
    _stamp = file.stamp;
    Q_EMIT fileChanged();
}

void Document::readBytes(const QByteArray& bytes, const QString& type) {
    if (!loadDataRepresentation(bytes, type))
        throw documentError(documentproblem::otherType, {_kind.currentTypeName(_desk), type});
    markSaved();
}

bool Document::readsBack(const QByteArray& bytes) const {
    try {
        return holdsContent(bytes);
    } catch (const ArchiveError&) {
        return false;
    }
}

void Document::saveTo(const QString& path, bool overwriteChanged) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const bool ownFile = absolute == _path;
    auto newLock = ownFile ? nullptr : std::make_unique<DocumentLock>(absolute);
    if (newLock && !newLock->tryLock()) throw documentError(documentproblem::openElsewhere, {}, path);
    if (ownFile && _readOnly) throw documentError(documentproblem::lookOnly, {}, path);
    const QByteArray bytes = dataRepresentationOfType(_kind.currentTypeName(_desk));
    if (!readsBack(bytes)) throw documentError(documentproblem::notTheSame, {}, path);
    SaveOptions options;
    options.keepBackup = true;
    options.overwriteChanged = overwriteChanged;
    if (ownFile) options.expected = _stamp;
    try {
        _stamp = saveFile(absolute, bytes, options);
    } catch (const SaveError& error) {
        // The new version is in place after all; only its survival of a power failure is open.
        if (error.replaced() && ownFile) _stamp = stampOf(bytes);
        throw;
    }
    _path = absolute;
    _readOnly = false;
    if (newLock) lock = std::move(newLock);
    markSaved();
    Q_EMIT fileChanged();
}

void Document::exportTo(const QString& path, const QString& type) {
    const QByteArray bytes = dataRepresentationOfType(type);
    if (bytes.isNull()) throw documentError(documentproblem::noExport, {type}, path);
    saveFile(QFileInfo(path).absoluteFilePath(), bytes);
}

void Document::revert() {
    if (_path.isEmpty()) throw documentError(documentproblem::neverSaved);
    readFrom(_path);
}

void Document::detachFromFile() {
    _path.clear();
    _stamp.reset();
    lock.reset();
    const bool wasEdited = isEdited();
    _savedState = newState();  // which no state of the content is
    if (!wasEdited) Q_EMIT editedChanged();
    Q_EMIT fileChanged();
}

void Document::setState(quint64 state) {
    const bool wasEdited = isEdited();
    _state = state;
    if (wasEdited != isEdited()) Q_EMIT editedChanged();
}

void Document::markSaved() {
    const bool wasEdited = isEdited();
    _savedState = _state;
    if (wasEdited) Q_EMIT editedChanged();
}

}  // namespace sargan
