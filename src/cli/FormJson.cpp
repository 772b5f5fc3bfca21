#include "cli/FormJson.h"

#include "platform/form/ColorText.h"
#include "platform/form/SystemColors.h"
#include "platform/record/RecordJson.h"

namespace sargan::cli {

namespace {

QJsonValue valueOf(const Form& form, int control) {
    const ControlState& state = form.state(control);
    switch (form.spec(control).kind) {
        case ControlKind::PopUp:
        case ControlKind::Slider:
        case ControlKind::Switch:
            return state.tag;
        case ControlKind::Date:
        case ControlKind::Time:
            return json::value(state.date);
        case ControlKind::Image:
            return json::value(Picture{state.image});
        case ControlKind::Color:
            return colorToJson(state.color);
        case ControlKind::Gauge:
            return json::number(state.level);
        default:
            return state.text;
    }
}

}  // namespace

QJsonValue colorToJson(const QColor& color) {
    if (!color.isValid()) return {};
    return colorText(componentsOf(color));
}

QJsonValue textColorToJson(const QColor& color) {
    const QString name = systemColorName(color);
    return name.isEmpty() ? colorToJson(color) : name;
}

QJsonObject formToJson(const Form& form, const Strings& strings) {
    QJsonObject controls;
    for (int control = 0; control < form.count(); ++control) {
        const ControlState& state = form.state(control);
        const bool isWell = form.spec(control).kind == ControlKind::Color;
        controls.insert(
            QLatin1String(form.spec(control).name),
            QJsonObject{{QStringLiteral("value"), valueOf(form, control)},
                        {QStringLiteral("text"), form.shownText(control, strings)},
                        {QStringLiteral("enabled"), state.enabled},
                        {QStringLiteral("hidden"), state.hidden},
                        {QStringLiteral("color"), isWell ? QJsonValue() : textColorToJson(state.color)}});
    }
    return controls;
}

}  // namespace sargan::cli
