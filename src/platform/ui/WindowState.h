#pragma once

#include <QJsonObject>

class QWidget;

namespace sargan {

class Form;

/// Place, size and focus of a window, by which a window made in its stead comes up in its place.
QJsonObject stateOf(const QWidget& window);
void bringBack(QWidget& window, const QJsonObject& state);

/// The texts and choices that a form holds, by control, for another form of the same kind.
QJsonObject valuesOf(const Form& form);
void setValues(Form& form, const QJsonObject& values);

}  // namespace sargan
