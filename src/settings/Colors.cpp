#include "settings/Colors.h"

#include <algorithm>

#include "settings/ColorArchive.h"
#include "settings/PreferenceTable.h"

namespace sargan {

using namespace Qt::StringLiterals;

QJsonValue colorValue(const ColorComponents& components) {
    return QJsonObject{{u"archive"_s, QString::fromLatin1(archivedColor(components).toBase64())}};
}

QJsonValue colorValue(const QColor& color) {
    return colorValue(componentsOf(color));
}

std::optional<ColorComponents> componentsIn(const QJsonValue& value) {
    const QJsonValue archive = value.toObject().value(u"archive"_s);
    if (!archive.isString()) return std::nullopt;
    const auto bytes = QByteArray::fromBase64Encoding(archive.toString().toLatin1());
    return bytes ? unarchivedColor(*bytes) : std::nullopt;
}

QJsonValue undecodedColor() {
    return QJsonObject{{u"undecoded"_s, u"keyed archive"_s}};
}

QColor storedColor(const UserDefaults& defaults, const QString& key, const QColor& fallback) {
    const auto components = componentsIn(defaults.value(key));
    return components ? colorOf(*components) : fallback;
}

bool isColorKey(const QString& key) {
    // Two of the dive profile that the preferences do not show.
    if (key == "ASC color"_L1 || key == "SLOW color"_L1) return true;
    return std::ranges::any_of(preferences(), [&key](const Preference& preference) {
        return preference.storedAs == StoredAs::Color && key == QLatin1String(preference.key);
    });
}

QJsonValue shownColor(const QJsonValue& value) {
    const auto components = componentsIn(value);
    return components ? QJsonValue(colorText(*components)) : value;
}

std::optional<QJsonValue> writtenColor(const QString& text) {
    if (const auto components = componentsFromText(text)) return colorValue(*components);
    const QColor color = colorFromText(text);
    if (color.isValid()) return colorValue(color);
    return std::nullopt;
}

}  // namespace sargan
