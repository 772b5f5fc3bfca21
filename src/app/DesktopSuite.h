#pragma once

#include "app/AppDelegate.h"
#include "app/DocumentSaving.h"
#include "app/DocumentWindows.h"
#include "app/InterfaceKeeper.h"
#include "app/MyDocumentController.h"

namespace sargan {

class StartWindow;

/// The whole desktop program on one desk: documents, windows, menus, and when it ends.
class DesktopSuite : public QObject {
    Q_OBJECT

public:
    DesktopSuite(const DocumentKinds& kinds, Desk& desk);
    ~DesktopSuite() override;

    MyDocumentController& controller() { return _controller; }
    DocumentWindows& windows() { return _windows; }
    DocumentSaving& saving() { return _saving; }
    AppDelegate& delegate() { return _delegate; }
    InterfaceKeeper& interface() { return _interface; }
    /// Null unless launching left the person without any document window.
    StartWindow* startWindow() const { return _startWindow.get(); }

    /// Opens these files, or without any what applicationOpenUntitledFile decides.
    void launch(const QStringList& files);
    void openFiles(const QStringList& files);
    /// Files from a second start of the program; without any the program comes to the front.
    void takeOver(const QStringList& files);
    void chooseAndOpen();
    /// Asks about every edited document; when all agree, all documents are closed and the program ends.
    bool quit();
    void quitLater();

    FileChoosers choosers;

Q_SIGNALS:
    /// Nothing is left on screen.
    void finished();

private:
    void equip(DocumentWindow* window);
    void takeDropped(DocumentWindow* window, const QStringList& files);
    void closeWindow(DocumentWindow* window);
    void showStartWindowIfNothingElse();
    void finishIfNothingIsLeft();

    MyDocumentController _controller;
    DocumentWindows _windows;
    DocumentSaving _saving;
    AppDelegate _delegate;
    InterfaceKeeper _interface;
    std::unique_ptr<StartWindow> _startWindow;
};

}  // namespace sargan
