#pragma once

#include "platform/form/Form.h"
#include "platform/record/Field.h"

namespace sargan {

/// A record's field into a control.
inline void showField(Form& form, int control, Int value) {
    form.setInteger(control, value);
}
inline void showField(Form& form, int control, Float value) {
    form.setText(control, shortest(value));
}
inline void showField(Form& form, int control, const Text& value) {
    form.setText(control, value);
}
inline void showField(Form& form, int control, const Date& value) {
    form.setDate(control, value);
}
inline void showField(Form& form, int control, const Picture& value) {
    form.setImage(control, value.bytes);
}
inline void showField(Form&, int, const Numbers&) {}

/// What a control holds into a field.
inline void takeField(const Form& form, int control, Int& value) {
    value = form.integer(control);
}
inline void takeField(const Form& form, int control, Float& value) {
    value = Float(form.number(control));
}
inline void takeField(const Form& form, int control, Text& value) {
    value = form.text(control);
}
inline void takeField(const Form& form, int control, Date& value) {
    value = form.date(control);
}
inline void takeField(const Form& form, int control, Picture& value) {
    const QByteArray& bytes = form.state(control).image;
    value.bytes = bytes.isEmpty() ? QByteArray() : bytes;
}
inline void takeField(const Form&, int, Numbers&) {}

}  // namespace sargan
