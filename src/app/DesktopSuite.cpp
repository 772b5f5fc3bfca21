#include "app/DesktopSuite.h"

#include <QFileInfo>

#include "app/MainMenu.h"
#include "app/ReminderWindow.h"
#include "app/StartWindow.h"
#include "interchange/Formats.h"
#include "interchange/ui/InterchangeActions.h"
#include "platform/ui/DocumentWindow.h"

namespace sargan {

namespace {

/// Who imports a file's dives; null for a document. Those can be large, and are known by their extension
/// without being read.
const DiveReader* readerOf(const QString& path, const DocumentKinds& kinds) {
    const QString extension = QFileInfo(path).suffix();
    for (const DocumentKind& kind : kinds.all())
        if (extension.compare(QLatin1String(kind.extension), Qt::CaseInsensitive) == 0) return nullptr;
    return diveReaderOfFile(path);
}

}  // namespace

DesktopSuite::DesktopSuite(const DocumentKinds& kinds, Desk& desk)
    : choosers(),
      _controller(kinds, desk),
      _windows(_controller),
      _saving(_controller, choosers),
      _delegate(desk),
      _interface(desk, _windows) {
    choosers = desktopFileChoosers(_controller);
    connect(&_windows, &DocumentWindows::windowMade, this, &DesktopSuite::equip);
    connect(&_interface, &InterfaceKeeper::languageChanged, this, [this] {
        if (_startWindow && _startWindow->isVisible()) showStartWindowIfNothingElse();
    });
    connect(&_controller, &MyDocumentController::penseBeteClosed, this, &DesktopSuite::finishIfNothingIsLeft);
}

DesktopSuite::~DesktopSuite() {
    while (!_controller.documents().empty()) _controller.close(_controller.documents().back().get());
}

void DesktopSuite::launch(const QStringList& files) {
    if (files.isEmpty())
        _controller.applicationOpenUntitledFile();
    else
        openFiles(files);
    showStartWindowIfNothingElse();
}

void DesktopSuite::openFiles(const QStringList& files) {
    QHash<const DiveReader*, QStringList> dives;
    for (const QString& file : files)
        if (const DiveReader* reader = readerOf(file, _controller.kinds()))
            dives[reader] << file;
        else
            _controller.openFile(file);
    if (!dives.isEmpty()) _controller.openDives(dives);
}

void DesktopSuite::takeOver(const QStringList& files) {
    openFiles(files);
    if (!files.isEmpty()) return;
    const auto open = _windows.all();
    if (!open.empty())
        open.back()->bringToFront();
    else if (_startWindow)
        _startWindow->activateWindow();
}

void DesktopSuite::chooseAndOpen() {
    openFiles(choosers.open());
}

void DesktopSuite::equip(DocumentWindow* window) {
    new MainMenu(*window, *this);
    // A window cannot be destroyed from within its own event.
    connect(
        window, &DocumentWindow::closeWanted, this, [this, window] { closeWindow(window); },
        Qt::QueuedConnection);
    connect(
        window, &DocumentWindow::filesDropped, this,
        [this, window](const QStringList& files) { takeDropped(window, files); }, Qt::QueuedConnection);
    if (_startWindow) _startWindow.release()->deleteLater();
}

void DesktopSuite::takeDropped(DocumentWindow* window, const QStringList& files) {
    const auto open = _windows.all();
    const bool isOpen = std::find(open.begin(), open.end(), window) != open.end();
    auto* interchange = isOpen ? window->findChild<InterchangeActions*>() : nullptr;
    openFiles(interchange ? interchange->takeDropped(files) : files);
}

void DesktopSuite::closeWindow(DocumentWindow* window) {
    const auto open = _windows.all();
    if (std::find(open.begin(), open.end(), window) == open.end()) return;
    window->storePending();
    if (!_saving.mayClose(window->document())) return;
    _controller.close(&window->document());
    finishIfNothingIsLeft();
}

bool DesktopSuite::quit() {
    const auto open = _windows.all();
    for (DocumentWindow* window : open) {
        window->storePending();
        if (window->document().isEdited()) window->bringToFront();
        if (!_saving.mayClose(window->document())) return false;
    }
    while (!_controller.documents().empty()) _controller.close(_controller.documents().back().get());
    if (ReminderWindow* note = _controller.penseBeteWindowIfMade()) {
        note->store();
        note->hide();
    }
    if (_startWindow) _startWindow->hide();
    finishIfNothingIsLeft();
    return true;
}

void DesktopSuite::quitLater() {
    QMetaObject::invokeMethod(
        this, [this] { quit(); }, Qt::QueuedConnection);
}

void DesktopSuite::showStartWindowIfNothingElse() {
    if (!_controller.documents().empty()) return;
    _startWindow = std::make_unique<StartWindow>(_controller.desk().strings);
    connect(
        _startWindow.get(), &StartWindow::newLogbookWanted, this,
        [this] { _controller.newDocument(_controller.kinds().standard()); }, Qt::QueuedConnection);
    connect(_startWindow.get(), &StartWindow::openWanted, this, &DesktopSuite::chooseAndOpen,
            Qt::QueuedConnection);
    connect(_startWindow.get(), &StartWindow::filesDropped, this, &DesktopSuite::openFiles,
            Qt::QueuedConnection);
    connect(_startWindow.get(), &StartWindow::closed, this, &DesktopSuite::finishIfNothingIsLeft);
    _startWindow->show();
}

void DesktopSuite::finishIfNothingIsLeft() {
    const ReminderWindow* note = _controller.penseBeteWindowIfMade();
    const bool isSomethingLeft = !_controller.documents().empty() || (note && note->isVisible()) ||
                                 (_startWindow && _startWindow->isVisible());
    if (!isSomethingLeft) Q_EMIT finished();
}

}  // namespace sargan
