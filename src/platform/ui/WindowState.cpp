#include "platform/ui/WindowState.h"

#include <QWidget>

#include "platform/form/Form.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// The control that has the keyboard: of a combo box it is a nameless field within.
QString focusOf(const QWidget& window) {
    for (const QWidget* widget = window.focusWidget(); widget && widget != &window;
         widget = widget->parentWidget())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_"))
            return widget->objectName();
    return {};
}

bool holdsText(ControlKind kind) {
    return kind == ControlKind::Text || kind == ControlKind::Number || kind == ControlKind::Area ||
           kind == ControlKind::Combo;
}

bool holdsTag(ControlKind kind) {
    return kind == ControlKind::PopUp || kind == ControlKind::Switch || kind == ControlKind::Slider;
}

}  // namespace

QJsonObject stateOf(const QWidget& window) {
    return {{u"geometry"_s, QString::fromLatin1(window.saveGeometry().toBase64())},
            {u"focus"_s, focusOf(window)}};
}

void bringBack(QWidget& window, const QJsonObject& state) {
    window.restoreGeometry(QByteArray::fromBase64(state[u"geometry"_s].toString().toLatin1()));
    const QString focus = state[u"focus"_s].toString();
    if (auto* control = focus.isEmpty() ? nullptr : window.findChild<QWidget*>(focus)) control->setFocus();
}

QJsonObject valuesOf(const Form& form) {
    QJsonObject values;
    for (int control = 0; control < form.count(); ++control) {
        const ControlSpec& spec = form.spec(control);
        if (holdsText(spec.kind)) values.insert(QLatin1String(spec.name), form.text(control));
        if (holdsTag(spec.kind)) values.insert(QLatin1String(spec.name), form.tag(control));
    }
    return values;
}

void setValues(Form& form, const QJsonObject& values) {
    for (int control = 0; control < form.count(); ++control) {
        const QJsonValue value = values[QLatin1String(form.spec(control).name)];
        if (value.isString()) form.setText(control, value.toString());
        if (value.isDouble()) form.setTag(control, value.toInt());
    }
}

}  // namespace sargan
