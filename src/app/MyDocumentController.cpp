#include "app/MyDocumentController.h"

#include <QFileInfo>
#include <QScopeGuard>

#include "app/LoadingWindow.h"
#include "app/ReminderWindow.h"
#include "interchange/Formats.h"
#include "interchange/ui/InterchangeActions.h"
#include "logbook/Carnet.h"
#include "settings/ui/PreferencesWindow.h"

namespace sargan {

namespace {

/// Reading goes on in one stretch, so whether it will take longer than 300 ms is told by the size. A logbook
/// of 200 MB was measured to take 500 ms from the start of the program to its window.
constexpr qint64 bytesReadIn300ms = 100'000'000;

}  // namespace

MyDocumentController::MyDocumentController(const DocumentKinds& kinds, Desk& desk)
    : DocumentController(kinds, desk) {}

MyDocumentController::~MyDocumentController() = default;

Document* MyDocumentController::newDocumentMenuAction(const QString& action) {
    for (const DocumentKind& kind : kinds().all())
        if (action == QLatin1String(kind.newAction)) return newDocument(kind);
    return nullptr;
}

Document* MyDocumentController::openFile(const QString& path) {
    const std::vector<Document*> untouched = untouchedDocuments();
    if (QFileInfo(path).size() > bytesReadIn300ms) showLoadingWindow();
    const auto done = qScopeGuard([this] { disposeLoadingWindow(); });
    Document* document = openDocument(path);
    if (document) closeLater(untouched);
    return document;
}

Document* MyDocumentController::openDives(const QHash<const DiveReader*, QStringList>& files) {
    const std::vector<Document*> untouched = untouchedDocuments();
    Document* document = newDocument(kinds().standard(), [&files](Document& made) {
        auto* carnet = qobject_cast<Carnet*>(&made);
        if (!carnet) return false;
        for (const DiveReader* reader : diveReaders())
            if (files.contains(reader)) importAndTell(*carnet, files[reader], *reader);
        return carnet->count() > 0;
    });
    if (document) closeLater(untouched);
    return document;
}

bool MyDocumentController::applicationOpenUntitledFile() {
    if (desk().defaults.boolean(QStringLiteral("pense bete"))) penseBeteWindow().bringToFront();
    if (const auto recent = recentDocuments()) {
        // An empty list is a list too: it opens nothing, not a new logbook.
        if (!recent->isEmpty()) openFile(recent->first());
    } else {
        newDocument(kinds().standard());
    }
    return true;
}

void MyDocumentController::showLoadingWindow() {
    if (!_loadingWindow) _loadingWindow = std::make_unique<LoadingWindow>(desk().strings);
    _loadingWindow->showNow();
}

void MyDocumentController::disposeLoadingWindow() {
    _loadingWindow.reset();
}

bool MyDocumentController::isLoadingWindowShown() const {
    return _loadingWindow && _loadingWindow->isVisible();
}

ReminderWindow& MyDocumentController::penseBeteWindow() {
    if (!_penseBeteWindow) {
        _penseBeteWindow = std::make_unique<ReminderWindow>(desk());
        connect(_penseBeteWindow.get(), &ReminderWindow::closed, this,
                &MyDocumentController::penseBeteClosed);
    }
    return *_penseBeteWindow;
}

PreferencesWindow& MyDocumentController::showPreferencePanel() {
    if (!_preferences) _preferences = std::make_unique<PreferencesWindow>(desk());
    _preferences->bringToFront();
    return *_preferences;
}

std::vector<Document*> MyDocumentController::untouchedDocuments() const {
    std::vector<Document*> found;
    for (const auto& document : documents())
        if (document->path().isEmpty() && !document->isEdited() && !document->canUndo() &&
            !document->canRedo())
            found.push_back(document.get());
    return found;
}

void MyDocumentController::closeLater(const std::vector<Document*>& untouched) {
    if (untouched.empty()) return;
    // The command to open may have come from the very window that gives way.
    const auto closeThem = [this, untouched] {
        const std::vector<Document*> now = untouchedDocuments();
        for (Document* document : untouched)
            if (std::find(now.begin(), now.end(), document) != now.end()) close(document);
    };
    QMetaObject::invokeMethod(this, closeThem, Qt::QueuedConnection);
}

}  // namespace sargan
