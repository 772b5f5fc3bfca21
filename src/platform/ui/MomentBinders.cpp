#include "platform/ui/MomentBinders.h"

#include "platform/ui/UndoGate.h"

namespace sargan {

MomentBinder::MomentBinder(Form& form, int control, MomentField::Part part, QWidget* parent)
    : ControlBinder(form, control), _field(new MomentField(part, parent)) {
    UndoGate::guard(_field);
    connect(_field, &MomentField::momentEdited, this, [this](const Moment& moment) {
        touch();
        this->form().setDate(this->control(), moment);
    });
    connect(_field, &QLineEdit::returnPressed, this, [this] { endEditing(); });
    watchLeaving(_field);
}

void MomentBinder::setCharacters(int count) {
    _field->setFixedWidth(_field->fontMetrics().horizontalAdvance(QLatin1Char('0')) * count + 14);
}

void MomentBinder::takeFocus() {
    _field->setFocus(Qt::OtherFocusReason);
    _field->selectAll();
}

void MomentBinder::show(const ControlState& state) {
    _field->setMoment(state.date);
}

void MomentBinder::applyLock(bool locked, bool enabled) {
    _field->setReadOnly(locked);
    _field->setEnabled(enabled);
}

DateBinder::DateBinder(Form& form, int control, QWidget* parent)
    : MomentBinder(form, control, MomentField::Part::Day, parent) {
    setCharacters(14);
}

TimeBinder::TimeBinder(Form& form, int control, QWidget* parent)
    : MomentBinder(form, control, MomentField::Part::TimeOfDay, parent) {
    setCharacters(7);
}

}  // namespace sargan
