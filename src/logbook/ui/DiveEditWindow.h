#pragma once

#include <QMainWindow>

#include "logbook/Carnet.h"

class QActionGroup;

namespace sargan {

class FormView;
class PaneSizes;

/// The window in which one dive is edited: the logbook's first selected one. What is typed is in the form at
/// once and in the dive when the form is stored: by the button, by going to another dive, or by closing.
class DiveEditWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `tools` are the logbook window's actions for this window's toolbar (a null one separates); `shared`
    /// those whose keys only work here too.
    DiveEditWindow(Carnet& carnet, const QList<QAction*>& tools, const QList<QAction*>& shared);
    ~DiveEditWindow() override;

    /// In front, with the keyboard, on this pane.
    void openOn(int pane);
    int paneShown() const;
    FormView& view() const { return *_view; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void makeToolbar(const QList<QAction*>& tools);
    void makePaneButtons();
    QAction* button(const char* name, const char* icon, const QString& text, const QString& tip);
    bool focusControl(const char* control);
    void store();
    void blank();
    void showDive();
    void showReadOnly();

    Carnet& _carnet;
    FormView* _view;
    PaneSizes* _sizes;
    QToolBar* _bar = nullptr;
    QActionGroup* _panes = nullptr;
    QAction* _store = nullptr;
    QAction* _blank = nullptr;
};

}  // namespace sargan
