#include "app/DocumentWindows.h"

#include "logbook/ui/DiveEditWindow.h"
#include "logbook/ui/LogbookWindow.h"
#include "platform/ui/WindowState.h"
#include "registers/ui/RegisterWindow.h"

namespace sargan {

namespace {

std::unique_ptr<DocumentWindow> makeWindow(Document& document) {
    if (auto* carnet = qobject_cast<Carnet*>(&document)) return std::make_unique<LogbookWindow>(*carnet);
    if (auto* shown = dynamic_cast<Register*>(&document)) return std::make_unique<RegisterWindow>(*shown);
    return nullptr;
}

}  // namespace

DocumentWindows::DocumentWindows(MyDocumentController& controller) : _controller(controller) {
    connect(&controller, &DocumentController::documentOpened, this, &DocumentWindows::open);
    connect(&controller, &DocumentController::documentClosing, this, &DocumentWindows::remove);
    connect(&controller, &DocumentController::documentWantsFront, this, [this](const Document* document) {
        if (DocumentWindow* window = windowOf(document)) window->bringToFront();
    });
}

DocumentWindows::~DocumentWindows() = default;

DocumentWindow* DocumentWindows::windowOf(const Document* document) const {
    const auto found = _windows.find(document);
    return found == _windows.end() ? nullptr : found->second.get();
}

std::vector<DocumentWindow*> DocumentWindows::all() const {
    std::vector<DocumentWindow*> list;
    for (const auto& document : _controller.documents())
        if (DocumentWindow* window = windowOf(document.get())) list.push_back(window);
    return list;
}

void DocumentWindows::open(Document* document) {
    auto window = makeWindow(*document);
    if (!window) return;
    DocumentWindow* made = window.get();
    _windows[document] = std::move(window);
    Q_EMIT windowMade(made);
    made->bringToFront();
}

void DocumentWindows::remakeAll() {
    for (const auto& document : _controller.documents())
        if (windowOf(document.get())) remake(document.get());
}

void DocumentWindows::remake(Document* document) {
    auto& window = _windows[document];
    window->storeBeforeReplaced();
    window->rememberPlace();
    const QJsonObject state = stateOf(*window);
    const QJsonObject parts = window->openParts();
    const bool isShown = window->isVisible();
    Q_EMIT window->replaced();
    const auto companions = window->companions;
    window.reset();
    window = makeWindow(*document);
    window->companions = companions;
    Q_EMIT windowMade(window.get());
    bringBack(*window, state);
    if (isShown) window->show();
    window->reopenParts(parts);
}

void DocumentWindows::remove(Document* document) {
    const auto found = _windows.find(document);
    if (found == _windows.end()) return;
    found->second->rememberPlace();
    _windows.erase(found);
    Q_EMIT windowGone();
}

}  // namespace sargan
