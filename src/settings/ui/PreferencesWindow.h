#pragma once

#include "settings/Preferences.h"
#include "settings/ui/AuxiliaryWindow.h"

class QActionGroup;
class QLabel;
class QPushButton;
class QToolBar;

namespace sargan {

class FormView;

/// The preferences on screen: a toolbar that switches panes, each with a window of its size, and the buttons
/// to reset and to save. It shows what is stored whenever it opens; what was not saved is forgotten.
class PreferencesWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    explicit PreferencesWindow(Desk& desk);
    ~PreferencesWindow() override;

    Preferences& preferences() { return _preferences; }
    FormView& view() const { return *_view; }
    void showPane(int pane);
    /// Stores, and tells every open document.
    void save();

protected:
    void build() override;
    void prepare() override;
    void showEvent(QShowEvent* event) override;

private:
    void makeToolbar();
    QWidget* buttonRow();
    QPushButton* button(const char* name, const QString& text);
    void showEdited();
    void fitLater();
    void fitToPane();

    Preferences _preferences;
    FormView* _view = nullptr;
    QToolBar* _toolbar = nullptr;
    QActionGroup* _items = nullptr;
    QLabel* _feedback = nullptr;
    int _pane = 0;
};

}  // namespace sargan
