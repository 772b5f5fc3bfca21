#pragma once

#include <QJsonObject>

#include "platform/form/Form.h"

namespace sargan::cli {

/// {"lieuField": {"value", "text", "enabled", "hidden", "color"}, …} of every control.
QJsonObject formToJson(const Form& form, const Strings& strings);

/// A colour that a person set: null when none was, else "rgba(r, g, b, a)".
QJsonValue colorToJson(const QColor& color);

/// The colour of a text: null when it was never set, a system colour's plain name, else "rgba(r, g, b, a)".
QJsonValue textColorToJson(const QColor& color);

}  // namespace sargan::cli
