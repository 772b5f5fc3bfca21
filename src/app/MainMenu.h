#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace sargan {

class DesktopSuite;
class DocumentWindow;
class Strings;
struct DocumentKind;

/// The menu bar of a document window.
class MainMenu : public QObject {
    Q_OBJECT

public:
    MainMenu(DocumentWindow& window, DesktopSuite& suite);

private:
    QAction* add(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                 void (MainMenu::*slot)());
    void makeFileMenu();
    void makeNewMenu(QMenu* file);
    void makeSettingsMenu();
    void makeWindowMenu();
    void makeHelpMenu();
    void fillRecentMenu();
    void fillWindowMenu();
    void updateFileMenu();
    void enableFileMenu();

    void newStandard();
    void open();
    void close();
    void save();
    void saveAs();
    void revert();
    void quit();
    void showPreferences();
    void about();

    DocumentWindow& _window;
    DesktopSuite& _suite;
    QMenu* _file = nullptr;
    QMenu* _recent = nullptr;
    QMenu* _windows = nullptr;
    QAction* _save = nullptr;
    QAction* _revert = nullptr;
};

/// What a document kind is called on screen: "Logbook".
QString kindTitle(const DocumentKind& kind, const Strings& strings);

}  // namespace sargan
