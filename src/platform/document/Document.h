#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <optional>

#include "platform/desk/Desk.h"
#include "platform/document/DocumentKind.h"
#include "platform/document/Toolbar.h"
#include "platform/files/SafeFile.h"

namespace sargan {

class DocumentLock;
class RecordEditor;
class TableSource;

/// What `info` tells of a document.
struct DocumentSummary {
    QString recordClass;
    std::optional<qint32> version;  ///< of the record class in the file that was read; the current one for an empty file
    qsizetype records = 0;
    QString firstDate;  ///< ISO 8601; empty when no record has a date
    QString lastDate;
};

/// One open document: its content, its file, its edited mark, its undo. It has no display; windows observe
/// it. Failures are exceptions whose what() is a sentence, and leave document and file as they were.
class Document : public QObject {
    Q_OBJECT

public:
    Document(const DocumentKind& kind, Desk& desk);
    ~Document() override;

    const DocumentKind& kind() const { return _kind; }
    Desk& desk() const { return _desk; }

    // --- Its file ---

    /// Empty while the document has never been saved.
    const QString& path() const { return _path; }
    /// The file's name, or "Untitled".
    QString displayName() const;
    void setUntitledName(const QString& name) { _untitledName = name; }
    bool isReadOnly() const { return _readOnly; }
    void setReadOnly(bool readOnly);

    /// Reads the file whole. Throws ReadError, ArchiveError or DocumentError; then this document is as it
    /// was.
    void readFrom(const QString& path) { takeFile(path, readStampedFile(path)); }
    /// The same from a file already read.
    void takeFile(const QString& path, const ReadResult& file);
    /// The same from bytes already read, under this type name.
    void readBytes(const QByteArray& bytes, const QString& type);
    /// Writes to the document's own file, or to another one that becomes its own. Throws SaveError (with
    /// ChangedOnDisk when someone else changed the file since, unless `overwriteChanged`) or DocumentError.
    void save(bool overwriteChanged = false) { saveTo(_path, overwriteChanged); }
    void saveAs(const QString& path) { saveTo(path, true); }
    /// Writes a file of an export type; the document's own file and edited mark stay.
    void exportTo(const QString& path, const QString& type);
    /// Reads the file again, giving up all changes. It can be undone.
    void revert();
    /// Opens a copy of the file's content as a new untitled document: forgets path and lock.
    void detachFromFile();

    /// Bytes for a type name; null when the document has no such type.
    virtual QByteArray dataRepresentationOfType(const QString& type) = 0;
    /// Takes the bytes as this document's content. Answers whether the type is the document's own.
    virtual bool loadDataRepresentation(const QByteArray& bytes, const QString& type) = 0;
    virtual DocumentSummary summary() const = 0;
    /// {"type", "class", "version", "records"}.
    virtual QJsonObject dump() const = 0;
    /// The inverse of `dump`: these records in place of the list, as of the current class version. Throws
    /// JsonError or DocumentError.
    virtual void loadRecords(const QJsonArray& records) = 0;
    /// Null when this kind of document cannot be edited.
    virtual RecordEditor* editor() { return nullptr; }
    /// Its list as a table; null when it has none.
    virtual TableSource* table() { return nullptr; }
    /// Its windows' toolbars.
    virtual QList<ToolbarState> toolbars() const { return {}; }

    // --- Its edits ---

    bool isEdited() const { return _state != _savedState; }
    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
    virtual QString undoName() const = 0;  ///< of the operation that undo would take back
    virtual QString redoName() const = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;

    /// The current language's texts.
    const Strings& strings() const { return _desk.strings; }

    /// Held while the file is open here; null for untitled and for read-only views.
    std::unique_ptr<DocumentLock> lock;

Q_SIGNALS:
    void contentChanged();
    void selectionChanged();
    void editedChanged();
    void fileChanged();

protected:
    /// Whether these bytes, read back, hold exactly this document's content. May throw ArchiveError.
    virtual bool holdsContent(const QByteArray& bytes) const = 0;
    /// A content state is a number that no other state of this document ever has.
    quint64 newState() { return ++_lastState; }
    quint64 state() const { return _state; }
    void setState(quint64 state);
    void markSaved();

private:
    void saveTo(const QString& path, bool overwriteChanged);
    bool readsBack(const QByteArray& bytes) const;

    const DocumentKind& _kind;
    Desk& _desk;
    QString _path;
    QString _untitledName;
    std::optional<FileStamp> _stamp;
    bool _readOnly = false;
    quint64 _state = 0;
    quint64 _savedState = 0;
    quint64 _lastState = 0;
};

}  // namespace sargan
