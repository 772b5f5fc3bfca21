#pragma once

#include <QJsonObject>

#include "platform/form/Form.h"

namespace sargan::cli {

/// {"lieuField": {"value", "text", "enabled", "hidden", "color"}, …} of every control.
QJsonObject formToJson(const Form& form, const Strings& strings);

/// A colour as all JSON output gives it: null when it was never set, else "rgba(r, g, b, a)".
QJsonValue colorToJson(const QColor& color);

}  // namespace sargan::cli
