#pragma once

#include "platform/archive/ArchiveReader.h"
#include "platform/document/Document.h"

namespace sargan {

/// A document of a kind whose register this program does not have yet: its records are shown as the plain
/// values of their archive and cannot be changed. A new one is empty and can be saved.
class PlainDocument : public Document {
public:
    PlainDocument(const DocumentKind& kind, Desk& desk);

    qsizetype count() const { return _records.size(); }
    const ArchivedObject& record(qsizetype row) const { return _records.at(row); }
    /// The archived values of a record in order, as text: numbers, strings, ISO dates, "(picture)".
    QStringList values(qsizetype row) const;

    QByteArray dataRepresentationOfType(const QString& type) override;
    bool loadDataRepresentation(const QByteArray& bytes, const QString& type) override;
    DocumentSummary summary() const override;
    QJsonObject dump() const override;
    void loadRecords(const QJsonArray& records) override;

    bool canUndo() const override { return false; }
    bool canRedo() const override { return false; }
    QString undoName() const override { return {}; }
    QString redoName() const override { return {}; }
    void undo() override {}
    void redo() override {}

    static std::unique_ptr<Document> create(const DocumentKind& kind, Desk& desk);

protected:
    bool holdsContent(const QByteArray& bytes) const override;

private:
    std::shared_ptr<const Archive> _archive;  ///< null for a new document
    QList<ArchivedObject> _records;
};

}  // namespace sargan
