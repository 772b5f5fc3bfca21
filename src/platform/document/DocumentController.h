#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/document/Document.h"

namespace sargan {

/// The open documents, the recent ones, and how documents come to be opened. Without a display: windows
/// are made by whoever observes `documentOpened`.
class DocumentController : public QObject {
    Q_OBJECT

public:
    DocumentController(const DocumentKinds& kinds, Desk& desk);
    ~DocumentController() override;

    const DocumentKinds& kinds() const { return _kinds; }
    Desk& desk() const { return _desk; }
    const std::vector<std::unique_ptr<Document>>& documents() const { return _documents; }

    /// The type that the next new document has: the stored one, else the framework's own default.
    QString defaultType() const;
    /// None clears it.
    void setDefaultType(const std::optional<QString>& type) { _defaultType = type; }

    /// Puts something into a new document before it is displayed; answers whether it is worth displaying.
    using Filling = std::function<bool(Document&)>;

    /// A new untitled document of the default type, displayed. Null when `fill` gave it up.
    Document* openUntitledDocument(const Filling& fill = {});
    /// The same for one kind: sets the default type, opens, and sets the default type back to none.
    Document* newDocument(const DocumentKind& kind, const Filling& fill = {});

    /// Opens a file, or brings its document to the front when it is open already. A file that another
    /// program has open is offered as a read-only view or as a copy. A file that does not open is told to
    /// the person. Null when nothing was opened.
    Document* openDocument(const QString& path);
    /// The same, failures as exceptions (ReadError, DocumentError) and no question.
    std::unique_ptr<Document> read(const QString& path) const;

    void close(Document* document);

    /// The most recent document first; none when no list has ever been stored.
    std::optional<QStringList> recentDocuments() const;
    void noteRecentDocument(const QString& path);
    void clearRecentDocuments();

    static constexpr int maximumRecent = 12;

Q_SIGNALS:
    void documentOpened(sargan::Document* document);
    void documentWantsFront(sargan::Document* document);
    void documentClosing(sargan::Document* document);
    void recentDocumentsChanged();

private:
    Document* adopt(std::unique_ptr<Document> document);
    Document* openFor(const QString& path) const;
    bool agreeOnLock(Document& document);

    const DocumentKinds& _kinds;
    Desk& _desk;
    std::optional<QString> _defaultType;
    std::vector<std::unique_ptr<Document>> _documents;
    int _untitledCount = 0;
};

}  // namespace sargan
