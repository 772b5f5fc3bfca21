#pragma once

#include <QWidget>
#include <memory>

#include "platform/desk/Desk.h"
#include "platform/form/Form.h"

namespace sargan {

/// How a person picks what no field can hold; replaced in tests.
struct FormChoosers {
    /// Invalid when the person gave up.
    std::function<QColor(QWidget* parent, const QColor& old)> color;
    /// The bytes of a picture's file; null when the person gave up.
    std::function<QByteArray(QWidget* parent)> image;
    /// The page of a PDF of several pages, from 0; -1 when the person gave up.
    std::function<int(QWidget* parent, const QByteArray& pdf)> page;
};

/// Ties one control of a form to one widget. What the form holds is shown as it is and never changed by
/// being shown; what the person does is written to the form at once.
class ControlBinder : public QObject {
    Q_OBJECT

public:
    ControlBinder(Form& form, int control) : _form(form), _control(control) {}

    virtual QWidget* widget() const = 0;
    int control() const { return _control; }
    /// Value, colour, enabled and hidden state into the widget.
    void refresh();
    /// Nothing can be changed, whatever the form says.
    void setLocked(bool locked);
    /// A widget that is shown and hidden together with the control's: its label, its unit.
    void addCompanion(QWidget* companion);
    /// Whether more width is of use.
    virtual bool grows() const { return false; }
    virtual void setCharacters(int) {}
    virtual void takeFocus();
    /// Ends the editing now if the person has typed since it last ended: what was merely visited is not told.
    void finishEditing();
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    virtual void show(const ControlState& state) = 0;
    virtual void applyLock(bool locked, bool enabled);
    Form& form() const { return _form; }
    /// The person has typed into the control.
    void touch() { _touched = true; }
    /// The person has left the control.
    void endEditing();
    /// Ends the editing when the keyboard leaves this field for another one.
    void watchLeaving(QWidget* field) { field->installEventFilter(this); }

private:
    void showColor(const QColor& wanted);

    Form& _form;
    int _control;
    bool _locked = false;
    bool _ending = false;
    bool _touched = false;  ///< typed into since the editing last ended
    QColor _shownColor;
    QList<QWidget*> _companions;
};

/// The binder for a control's kind, its widget made as a child of `parent` and named as the control.
std::unique_ptr<ControlBinder> makeBinder(Form& form, int control, const Desk& desk,
                                          const FormChoosers& choosers, QWidget* parent);

/// A text that is there, also when it is empty: what a person leaves empty is empty, not absent.
inline QString present(const QString& text) {
    return text.isNull() ? QStringLiteral("") : text;
}

}  // namespace sargan
