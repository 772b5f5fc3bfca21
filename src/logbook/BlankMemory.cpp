#include "logbook/BlankMemory.h"

namespace sargan {

namespace {

void giveBack(Form& form, int control, const ControlState& state) {
    switch (form.spec(control).kind) {
        case ControlKind::Date:
        case ControlKind::Time:
            return form.setDate(control, state.date);
        case ControlKind::PopUp:
        case ControlKind::Switch:
        case ControlKind::Slider:
            return form.setTag(control, state.tag);
        default:
            return form.setText(control, state.text);
    }
}

}  // namespace

BlankMemory::BlankMemory(const Form& form, Plongee dive)
    : _dive(std::move(dive)), _isChanged(std::size_t(form.count())) {
    for (int i = 0; i < form.count(); ++i) _states.push_back(form.state(i));
}

void BlankMemory::note(int control) {
    if (_isChanged[std::size_t(control)]) return;
    _isChanged[std::size_t(control)] = true;
    _changed.push_back(control);
}

void BlankMemory::restore(Form& form) {
    for (const int control : _changed) giveBack(form, control, _states[std::size_t(control)]);
    for (const int control : _changed) _isChanged[std::size_t(control)] = false;
    _changed.clear();
}

}  // namespace sargan
