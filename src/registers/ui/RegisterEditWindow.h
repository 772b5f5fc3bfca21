#pragma once

#include <QMainWindow>

#include "registers/Register.h"

class QActionGroup;

namespace sargan {

class FormView;
class PaneSizes;

/// The window in which one record is edited: the register's first selected one. What is typed is in the form
/// at once and in the record when the form is stored: by going to another record, by ending the editing of a
/// field with a pick list, or by closing. Every page has a size of its own.
class RegisterEditWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `tools` fill the toolbar; `shared` are actions of the register's window whose keys work here too.
    RegisterEditWindow(Register& shown, const QList<QAction*>& tools, const QList<QAction*>& shared);
    ~RegisterEditWindow() override;

    /// In front, with the keyboard.
    void open();
    /// Shows a page of the form in that page's size; the window's top edge stays where it is.
    void goPage(int page);
    int pageShown() const;
    FormView& view() const { return *_view; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeToolbar(const QList<QAction*>& tools);
    void makePageButtons();
    void showRecord();
    void showFile();
    void rememberSizes();
    QString placeKey() const;

    Register& _register;
    FormView* _view;
    QToolBar* _bar = nullptr;
    QActionGroup* _pages = nullptr;
    PaneSizes* _sizes = nullptr;
};

}  // namespace sargan
