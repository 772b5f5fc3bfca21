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
        throw DocumentError(QStringLiteral("%1: %2").arg(path, error.sentence()));
    }
    _path = QFileInfo(path).absoluteFilePath();
    _stamp = file.stamp;
    Q_EMIT fileChanged();
}

void Document::readBytes(const QByteArray& bytes, const QString& type) {
    if (!loadDataRepresentation(bytes, type))
        throw DocumentError(QStringLiteral("a document of the type \"%1\" was expected, not \"%2\"")
                                .arg(_kind.currentTypeName(_desk), type));
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
    if (ownFile && _readOnly)
        throw DocumentError(
            QStringLiteral("%1: this document was opened to look at only, so the file was left "
                           "alone")
                .arg(path));
    const QByteArray bytes = dataRepresentationOfType(_kind.currentTypeName(_desk));
    if (!readsBack(bytes))
        throw DocumentError(
            QStringLiteral("%1: what would be written does not read back as this document, so "
                           "nothing was written")
                .arg(path));
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
    if (!ownFile) {
        lock = std::make_unique<DocumentLock>(absolute);
        lock->tryLock();
    }
    markSaved();
    Q_EMIT fileChanged();
}

void Document::exportTo(const QString& path, const QString& type) {
    const QByteArray bytes = dataRepresentationOfType(type);
    if (bytes.isNull())
        throw DocumentError(QStringLiteral("%1: there is no export type \"%2\"").arg(path, type));
    saveFile(QFileInfo(path).absoluteFilePath(), bytes);
}

void Document::revert() {
    if (_path.isEmpty()) throw DocumentError(QStringLiteral("the document has never been saved"));
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
