#pragma once

#include <QtTest>
#include <QtWidgets>

#include "platform/form/Form.h"
#include "platform/ui/MomentField.h"

/// What a person does with a control's widget and what it shows, whatever its kind, so that a test can walk
/// through every control of a window.
namespace formwalk {

using namespace Qt::StringLiterals;
using sargan::ControlKind;

inline void typeInto(QWidget* widget, const QString& text) {
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, text);
}

/// Uses the widget so that the control holds another value; `turn` (1, 2, …) chooses which.
inline void operate(QWidget* widget, const sargan::ControlSpec& spec, int turn) {
    switch (spec.kind) {
        case ControlKind::Text:
        case ControlKind::Number:
        case ControlKind::Area:
        case ControlKind::Combo:
            typeInto(widget, u"1%1,5"_s.arg(turn));
            break;
        case ControlKind::Date:
            typeInto(widget, u"0%1/03/2019"_s.arg(turn));
            break;
        case ControlKind::Time:
            typeInto(widget, u"1%1:25"_s.arg(turn));
            break;
        case ControlKind::PopUp: {
            auto* combo = qobject_cast<QComboBox*>(widget);
            if (spec.spread) {
                widget->findChildren<QRadioButton*>().at(turn % int(spec.menu.size()))->click();
                break;
            }
            combo->setFocus();
            QTest::keyClick(combo, Qt::Key_Home);
            for (int i = 1; i <= turn % combo->count(); ++i) QTest::keyClick(combo, Qt::Key_Down);
            break;
        }
        case ControlKind::Switch:
            QTest::keyClick(widget, Qt::Key_Space);
            break;
        case ControlKind::Slider:
            QTest::keyClick(widget, Qt::Key_Home);
            for (int i = 0; i < turn; ++i) QTest::keyClick(widget, Qt::Key_Right);
            break;
        case ControlKind::Image:
        case ControlKind::Color:
            QTest::mouseClick(widget, Qt::LeftButton);
            break;
        case ControlKind::Caption:
        case ControlKind::Gauge:
            break;
    }
}

/// What the form must hold after `operate`, written as a text.
inline QString expectedAfter(const sargan::ControlSpec& spec, int turn, const QString& before) {
    switch (spec.kind) {
        case ControlKind::Date:
            return u"2019-03-0%1"_s.arg(turn);
        case ControlKind::Time:
            return u"1%1:25"_s.arg(turn);
        case ControlKind::PopUp:
            return QString::number(spec.menu[std::size_t(turn) % spec.menu.size()].tag);
        case ControlKind::Switch:
            return before == u"0"_s ? u"1"_s : u"0"_s;
        case ControlKind::Slider:
            return QString::number(std::min(spec.minimum + turn, spec.maximum));
        case ControlKind::Caption:
        case ControlKind::Gauge:
            return before;
        default:
            return u"1%1,5"_s.arg(turn);
    }
}

/// What the form holds, as a text.
inline QString held(const sargan::Form& form, int control) {
    switch (form.spec(control).kind) {
        case ControlKind::Date:
            return form.date(control).local().toString(u"yyyy-MM-dd"_s);
        case ControlKind::Time:
            return form.date(control).local().toString(u"HH:mm"_s);
        case ControlKind::PopUp:
        case ControlKind::Switch:
        case ControlKind::Slider:
            return QString::number(form.tag(control));
        default:
            return form.text(control);
    }
}

/// What the widget shows, in the same words as `held`.
inline QString shown(const QWidget* widget, const sargan::ControlSpec& spec) {
    if (const auto* field = qobject_cast<const sargan::MomentField*>(widget)) {
        const QDate day = QDate::fromString(field->text(), u"dd/MM/yyyy"_s);
        return spec.kind == ControlKind::Date ? day.toString(u"yyyy-MM-dd"_s) : field->text();
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(widget)) return line->text();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(widget)) return area->toPlainText();
    if (const auto* combo = qobject_cast<const QComboBox*>(widget))
        return spec.kind == ControlKind::PopUp ? combo->currentData().toString() : combo->currentText();
    if (spec.spread) {
        const auto buttons = widget->findChildren<QRadioButton*>();
        for (int place = 0; place < buttons.size(); ++place)
            if (buttons[place]->isChecked()) return QString::number(spec.menu[std::size_t(place)].tag);
        return u"nothing"_s;
    }
    if (const auto* box = qobject_cast<const QCheckBox*>(widget))
        return QString::number(box->isChecked() ? 1 : 0);
    if (const auto* slider = qobject_cast<const QSlider*>(widget)) return QString::number(slider->value());
    if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    return u"no such widget"_s;
}

/// Puts a value into the form as a controller would.
inline void put(sargan::Form& form, int control, int turn) {
    const sargan::ControlSpec& spec = form.spec(control);
    switch (spec.kind) {
        case ControlKind::Date:
            form.setDate(control, sargan::Moment::fromIso(u"2018-05-0%1"_s.arg(turn)));
            break;
        case ControlKind::Time:
            form.setDate(control, sargan::Moment::fromIso(u"0%1:45"_s.arg(turn)));
            break;
        case ControlKind::PopUp:
            form.setTag(control, spec.menu[std::size_t(turn) % spec.menu.size()].tag);
            break;
        case ControlKind::Switch:
            form.setTag(control, turn % 2);
            break;
        case ControlKind::Slider:
            form.setTag(control, std::min(spec.minimum + turn, spec.maximum));
            break;
        default:
            form.setText(control, u"put %1"_s.arg(turn));
    }
}

}  // namespace formwalk
