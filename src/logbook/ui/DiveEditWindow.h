#pragma once

#include <QMainWindow>

#include "logbook/Carnet.h"

class QActionGroup;

namespace sargan {

class FormView;

/// The window in which one dive is edited: the logbook's first selected one. What is typed is in the form at
/// once and in the dive when the form is stored: by the button, by going to another dive, or by closing.
class DiveEditWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `previous` and `next` are the logbook window's; `shared` its actions whose keys work here too.
    DiveEditWindow(Carnet& carnet, QAction* previous, QAction* next, const QList<QAction*>& shared);
    ~DiveEditWindow() override;

    /// In front, with the keyboard, on this pane.
    void openOn(int pane);
    int paneShown() const;
    FormView& view() const { return *_view; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeToolbar(QAction* previous, QAction* next);
    void makePaneButtons(QToolBar* bar);
    QAction* button(QToolBar* bar, const char* name, const char* icon, const QString& text,
                    const QString& tip);
    void blank();
    void showDive();
    void showReadOnly();

    Carnet& _carnet;
    FormView* _view;
    QActionGroup* _panes = nullptr;
    QAction* _store = nullptr;
    QAction* _blank = nullptr;
};

}  // namespace sargan
