#include "platform/document/DocumentController.h"

#include <QFileInfo>
#include <QJsonArray>

#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentError.h"
#include "platform/document/Sentences.h"
#include "platform/files/DocumentLock.h"

namespace sargan {

namespace {

const QString recentKey = QStringLiteral("recent documents");

QString identityOf(const QString& path) {
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

}  // namespace

DocumentController::DocumentController(const DocumentKinds& kinds, Desk& desk) : _kinds(kinds), _desk(desk) {}

DocumentController::~DocumentController() = default;

QString DocumentController::defaultType() const {
    return _defaultType.value_or(_kinds.standard().currentTypeName(_desk));
}

Document* DocumentController::openUntitledDocument(const Filling& fill) {
    const DocumentKind* kind = _kinds.named(defaultType(), _desk);
    if (!kind) return nullptr;
    auto document = kind->create(*kind, _desk);
    const QString untitled = _desk.strings.ui("Untitled");
    const int number = _untitledCount + 1;
    document->setUntitledName(number == 1 ? untitled : untitled + u' ' + QString::number(number));
    if (fill && !fill(*document)) return nullptr;
    _untitledCount = number;
    return adopt(std::move(document));
}

Document* DocumentController::newDocument(const DocumentKind& kind, const Filling& fill) {
    setDefaultType(kind.currentTypeName(_desk));
    Document* document = openUntitledDocument(fill);
    setDefaultType(std::nullopt);
    return document;
}

std::unique_ptr<Document> DocumentController::read(const QString& path) const {
    const ReadResult file = readStampedFile(path);
    try {
        const DocumentKind& kind = _kinds.forContent(file.bytes, path);
        auto document = kind.create(kind, _desk);
        document->takeFile(path, file);
        return document;
    } catch (const ArchiveError& error) {
        throw DocumentError(error, path);
    } catch (const DocumentError& error) {
        if (error.message().key.isEmpty() || !error.path().isEmpty()) throw;
        throw DocumentError(error.message(), path);
    }
}

Document* DocumentController::openDocument(const QString& path) {
    if (Document* open = openFor(path)) {
        Q_EMIT documentWantsFront(open);
        return open;
    }
    try {
        std::unique_ptr<Document> document = read(path);
        if (!agreeOnLock(*document)) return nullptr;
        if (!document->path().isEmpty()) noteRecentDocument(document->path());
        return adopt(std::move(document));
    } catch (const std::exception& error) {
        _desk.prompt.alert(sentenceIn(_desk.strings, error));
        return nullptr;
    }
}

bool DocumentController::agreeOnLock(Document& document) {
    auto lock = std::make_unique<DocumentLock>(document.path());
    if (lock->tryLock()) {
        document.lock = std::move(lock);
        return true;
    }
    const QString question = _desk.strings.text(
        Message<QString>{"Main", "Document open elsewhere",
                         "\"%@\" is open in another program. Open it to look at only, or work on a copy?"},
        document.displayName());
    const QStringList buttons{_desk.strings.ui("Look at only"), _desk.strings.ui("Work on a copy"),
                              _desk.strings.text({"Main", "Cancel", "Cancel"})};
    const int answer = _desk.prompt.ask(question, buttons);
    if (answer == 0) document.setReadOnly(true);
    if (answer == 1) {
        document.setUntitledName(_desk.strings.ui("Copy of") + u' ' + document.displayName());
        document.detachFromFile();
    }
    return answer == 0 || answer == 1;
}

void DocumentController::close(Document* document) {
    const auto found = std::find_if(_documents.begin(), _documents.end(),
                                    [document](const auto& open) { return open.get() == document; });
    if (found == _documents.end()) return;
    Q_EMIT documentClosing(document);
    _documents.erase(found);
}

std::optional<QStringList> DocumentController::recentDocuments() const {
    if (!_desk.defaults.contains(recentKey)) return std::nullopt;
    return _desk.defaults.list(recentKey);
}

void DocumentController::noteRecentDocument(const QString& path) {
    QStringList recent = recentDocuments().value_or(QStringList());
    recent.removeAll(path);
    recent.prepend(path);
    _desk.defaults.store(recentKey, QJsonArray::fromStringList(recent.mid(0, maximumRecent)));
    Q_EMIT recentDocumentsChanged();
}

void DocumentController::clearRecentDocuments() {
    _desk.defaults.remove(recentKey);
    Q_EMIT recentDocumentsChanged();
}

Document* DocumentController::adopt(std::unique_ptr<Document> document) {
    Document* opened = document.get();
    _documents.push_back(std::move(document));
    Q_EMIT documentOpened(opened);
    return opened;
}

Document* DocumentController::openFor(const QString& path) const {
    const QString identity = identityOf(path);
    for (const auto& document : _documents)
        if (!document->path().isEmpty() && identityOf(document->path()) == identity) return document.get();
    return nullptr;
}

}  // namespace sargan
