#include "settings/PreferenceTable.h"

#include <QRegularExpression>

#include "platform/form/ColorText.h"
#include "settings/Colors.h"

namespace sargan {

namespace {

using enum StoredAs;

/// Colours that were never saved are shown as the registered ones, whose stored form nobody decodes. Columns
/// that were never chosen stand in the table as designed: all but the gas and the breathing apparatus.
constexpr Preference table[] = {
    {"tank volume", "volumeBlocField", Object, "15"},
    {"tank pressure", "pressionBlocField", Object, "230"},
    {"default weight", "defaultWeightField", Object, ""},
    {"us units", "usUnitsSwitch", Switch, "0"},
    {"display units", "displayUnitsSwitch", Switch, "1"},
    {"depth time in color", "tableColorSwitch", Switch, "1"},
    {"depth color", "profondeurWell", Color, "purple", "blue"},
    {"time color", "dureeWell", Color, "rgba(0, 0, 0.6, 1)", "blue"},
    {"color item", "itemColorSwitch", Switch, "0"},
    {"coloured text", "textInColorField", Text, ""},
    {"coloured theme", "themeInColorPopUp", Tag, "0"},
    {"low temperature in color", "lowTemperatureSwitch", Switch, "0"},
    {"low temperature value", "tempValueField", Text, ""},
    {"low temperature color", "lowTemperatureWell", Color, "blue", "blue"},
    {"mix in color", "mixInColorSwitch", Switch, "1"},
    {"foreign in color", "foreignInColorSwitch", Switch, "1"},
    {"foreign color", "foreignWell", Color, "rgba(0.725, 1, 0.674, 1)", "rgba(0.725, 1, 0.674, 1)"},
    {"country code", "countryCodeField", Text, "FRA"},
    {"column numero", "numeroColumnSwitch", Column, "1", "1"},
    {"column date", "dateColumnSwitch", Column, "1", "1"},
    {"column lieu", "lieuColumnSwitch", Column, "1", "1"},
    {"column site", "siteColumnSwitch", Column, "1", "1"},
    {"column heure", "heureColumnSwitch", Column, "1", "1"},
    {"column profondeur", "profondeurColumnSwitch", Column, "1", "1"},
    {"column temps", "tempsColumnSwitch", Column, "1", "1"},
    {"column temp eau", "temperatureColumnSwitch", Column, "1", "1"},
    {"column deco", "decoColumnSwitch", Column, "1", "1"},
    {"column coeff", "coeffColumnSwitch", Column, "1", "1"},
    {"column visibilite", "visibiliteColumnSwitch", Column, "1", "1"},
    {"column inoubliable", "inoubliableColumnSwitch", Column, "1", "1"},
    {"column gaz", "gazColumnSwitch", Column, "0", "0"},
    {"column scaph", "scaphColumnSwitch", Column, "0", "0"},
    {"plot color", "plotColorWell", Color, "orange", "blue"},
    {"background color", "backgroundColorWell", Color, "rgba(0.855, 0.49, 0.149, 1)", "gray"},
    {"alpha background color", "alphaBackgroundField", Object, "0.2"},
    {"fill plot", "fillSwitch", Switch, "1"},
    {"fill color", "fillColorWell", Color, "rgba(0.1, 0.1, 1, 1)", "red"},
    {"alpha fill color", "alphaFillField", Object, "0.4"},
    {"gradient yes", "gradientYesSwitch", Switch, "1"},
    {"gradient lines color", "gradientLinesColorWell", Color, "rgba(0.702, 0.702, 0.702, 1)",
     "rgba(0.702, 0.702, 0.702, 1)"},
    {"x minor ticks", "xMinorTicksSwitch", Switch, "1"},
    {"y minor ticks", "yMinorTicksSwitch", Switch, "1"},
    {"dashed lines", "dashedLinesSwitch", Switch, "1"},
    {"ppO2 line", "ppO2Switch", Switch, "0"},
    {"stop interval", "stopIntervalField", Object, "3"},
    {"low GF", "lowGFField", Object, "0"},
    {"high GF", "highGFField", Object, "0"},
    {"soda lime", "sodaLimeField", Object, ""},
    {"cell life", "cellLifeField", Object, "18"},
};

/// A number keeps the digits that were typed when it is shown again, so "1e3", "0,5" and numbers with more
/// digits than a real holds stay texts.
QJsonValue objectValue(const QString& text) {
    static const QRegularExpression plainNumber(QStringLiteral("^-?[0-9]{1,12}(\\.[0-9]{1,6})?$"));
    return plainNumber.match(text).hasMatch() ? QJsonValue(text.toDouble()) : QJsonValue(text);
}

bool isOn(const UserDefaults& defaults, const Preference& preference) {
    const QString key = QLatin1String(preference.key);
    if (preference.unset && !defaults.contains(key)) return *preference.unset == '1';
    return defaults.boolean(key);
}

}  // namespace

std::span<const Preference> preferences() {
    return table;
}

const Preference& preferenceOf(const char* key) {
    for (const Preference& preference : table)
        if (qstrcmp(preference.key, key) == 0) return preference;
    throw std::out_of_range(key);
}

QJsonValue preferenceValue(const Preference& preference, const Form& form) {
    const int control = form[ControlName{preference.control}];
    switch (preference.storedAs) {
        case Object:
            return objectValue(form.text(control));
        case Text:
            return form.text(control);
        case Switch:
        case Column:
            return form.isOn(control) ? 1 : 0;
        case Tag:
            return form.tag(control);
        case Color:
            return colorValue(form.state(control).color);
    }
    return {};
}

void showPreference(const Preference& preference, const UserDefaults& defaults, Form& form) {
    const int control = form[ControlName{preference.control}];
    const QString key = QLatin1String(preference.key);
    switch (preference.storedAs) {
        case Object:
        case Text:
            return form.setText(control, defaults.text(key));
        case Switch:
        case Column:
            return form.setTag(control, isOn(defaults, preference) ? 1 : 0);
        case Tag:
            return form.setTag(control, defaults.integer(key));
        case Color:
            return form.setColor(control,
                                 storedColor(defaults, key, colorFromText(QLatin1String(preference.unset))));
    }
}

void resetPreference(const Preference& preference, Form& form) {
    const int control = form[ControlName{preference.control}];
    const QString value = QLatin1String(preference.reset);
    switch (preference.storedAs) {
        case Object:
        case Text:
            return form.setText(control, value);
        case Switch:
        case Column:
        case Tag:
            return form.setTag(control, value.toInt());
        case Color:
            return form.setColor(control, colorFromText(value));
    }
}

}  // namespace sargan
