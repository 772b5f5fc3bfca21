#pragma once

#include <QMainWindow>
#include <QTimer>

#include "platform/desk/Desk.h"
#include "platform/print/Drawing.h"
#include "platform/ui/Printing.h"
#include "profile/Profil.h"

class QLabel;
class QMenu;

namespace sargan {

class ProfilView;

/// What the profile window shows: the graph, and the name of its dive.
struct ShownProfil {
    Profil profil;
    QString title;     ///< "Dive 12 – logbook.carnet"
    QString fileName;  ///< that a picture of it gets, without an ending
};

/// The window with the graph of the dive at hand. It fetches what it shows when it is told that something
/// has changed, and once however much has.
class GraphProfileWindow : public QMainWindow {
    Q_OBJECT

public:
    GraphProfileWindow(Desk& desk, std::function<ShownProfil()> source);

    ProfilView& view() const { return *_view; }
    /// In front, up to date.
    void open();
    /// Fetches anew, before the window is painted next.
    void refresh();
    /// Actions of the logbook's whose keys work here too.
    void addTools(const QList<QAction*>& tools);

    /// The graph at its usual size, whatever the window's.
    Drawing drawing() const;
    PrintActions& printing() const { return *_printing; }
    /// Writes a picture; the name's ending says which kind. What goes wrong is alerted.
    bool savePicture(const QString& path);

    /// Asks for a file to save the picture in, "" for none; tests answer in its place.
    std::function<QString(const QString& suggested)> chooseFile;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fetch();
    void showReadOut();
    void askAndSave();
    QAction* addTool(const char* name, const char* icon, const QString& text, const QString& tip,
                     void (GraphProfileWindow::*slot)());
    void addPrinting();
    void addMarkerMenu();
    void restorePlace();

    Desk& _desk;
    std::function<ShownProfil()> _source;
    ProfilView* _view;
    QLabel* _readOut;
    QToolBar* _bar = nullptr;
    QAction* _toolsEnd = nullptr;
    PrintActions* _printing = nullptr;
    QString _fileName;
    QTimer _pending;
    NotificationCenter::Observation _observation;
};

}  // namespace sargan
