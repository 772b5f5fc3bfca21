#pragma once

#include <QWidget>

#include "platform/form/WindowLayout.h"
#include "platform/ui/ControlBinder.h"

class QStackedWidget;

namespace sargan {

/// A form on screen: makes the widgets that a layout lists, each with its control's name as objectName, and
/// keeps widgets and form the same, both ways. While it is hidden it does no work; it catches up when shown.
class FormView : public QWidget {
    Q_OBJECT

public:
    FormView(Form& form, const WindowLayout& layout, Desk& desk, QWidget* parent = nullptr);
    ~FormView() override;

    int paneCount() const;
    int currentPane() const;
    void showPane(int pane);
    /// Nothing can be changed; texts can still be selected and copied.
    void setReadOnly(bool readOnly);
    /// The keyboard to the control that the form last asked for, when it stands on the current pane, else to
    /// the pane's first control.
    void takeFocus();
    /// Ends the editing of what is being typed into, as leaving it would.
    void finishEditing();

    FormChoosers choosers;

Q_SIGNALS:
    void paneChanged(int pane);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void build(const WindowLayout& layout);
    void refresh();
    ControlBinder* bind(const char* control, QWidget* parent);
    void controlChanged(int control);
    void focusOn(int control);
    bool isOnCurrentPane(const QWidget* widget) const;

    Form& _form;
    Desk& _desk;
    QStackedWidget* _panes;
    std::vector<std::unique_ptr<ControlBinder>> _binders;  ///< by control; null for one not in the layout
    QList<int> _order;                                     ///< controls in the layout's order
    bool _stale = false;
};

/// The pickers of the desktop: a colour dialog and a file dialog.
FormChoosers desktopChoosers(const Desk& desk);

}  // namespace sargan
