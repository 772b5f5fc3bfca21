#pragma once

#include <QColor>
#include <QJsonValue>
#include <optional>

#include "platform/desk/UserDefaults.h"
#include "platform/form/ColorText.h"

namespace sargan {

/// A colour as the settings hold it: the base64 text of a typedstream archive of the colour object, as
/// {"archive": "BAtzdHJlYW10eXBlZA…"}.
QJsonValue colorValue(const ColorComponents& components);
QJsonValue colorValue(const QColor& color);

/// The colour that such a value holds; none for the undecoded form, for damage, and for anything else.
std::optional<ColorComponents> componentsIn(const QJsonValue& value);

/// What the colours registered at start-up are: archives of another form, which no reader decodes. So they
/// take effect only once the preferences have been saved.
QJsonValue undecodedColor();

/// The colour stored under a key; `fallback` when none is, when only the registered one is there, and when
/// what is stored does not decode.
QColor storedColor(const UserDefaults& defaults, const QString& key, const QColor& fallback);

/// Whether this setting is a colour.
bool isColorKey(const QString& key);

/// A setting as people read it: a colour as "rgba(r, g, b, a)", any other value as it is.
QJsonValue shownColor(const QJsonValue& value);
/// What to store for a colour in words: "rgba(r, g, b, a)" or a name; none for any other text.
std::optional<QJsonValue> writtenColor(const QString& text);

}  // namespace sargan
