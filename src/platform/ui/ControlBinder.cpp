#include "platform/ui/ControlBinder.h"

#include <QFocusEvent>
#include <QGuiApplication>

#include "platform/ui/ChoiceBinders.h"
#include "platform/ui/GaugeBinder.h"
#include "platform/ui/ImageBinder.h"
#include "platform/ui/LegibleColor.h"
#include "platform/ui/MomentBinders.h"
#include "platform/ui/TextBinders.h"

namespace sargan {

void ControlBinder::refresh() {
    const ControlState& state = _form.state(_control);
    show(state);
    applyLock(_locked, state.enabled);
    if (_form.spec(_control).kind != ControlKind::Color) showColor(state.color);
    if (widget()->isHidden() != state.hidden) {
        widget()->setHidden(state.hidden);
        for (QWidget* companion : std::as_const(_companions)) companion->setHidden(state.hidden);
    }
    for (QWidget* companion : std::as_const(_companions)) companion->setEnabled(state.enabled);
}

void ControlBinder::addCompanion(QWidget* companion) {
    _companions.append(companion);
    // The control itself was hidden before it had company.
    if (_form.state(_control).hidden) companion->hide();
    companion->setEnabled(_form.state(_control).enabled);
}

void ControlBinder::setLocked(bool locked) {
    _locked = locked;
    applyLock(locked, _form.state(_control).enabled);
}

void ControlBinder::applyLock(bool locked, bool enabled) {
    widget()->setEnabled(enabled && !locked);
}

void ControlBinder::takeFocus() {
    widget()->setFocus(Qt::OtherFocusReason);
}

void ControlBinder::endEditing() {
    // A question that the form asks takes the focus away and would end the editing once more.
    if (_ending) return;
    _ending = true;
    _touched = false;
    _form.endEditing(_control);
    _ending = false;
}

void ControlBinder::finishEditing() {
    if (_touched) endEditing();
}

bool ControlBinder::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::FocusOut) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) finishEditing();
    return false;
}

void ControlBinder::showColor(const QColor& wanted) {
    const QColor window = QGuiApplication::palette().color(QPalette::Window);
    const QColor color = wanted.isValid() ? legibleOn(window, wanted) : wanted;
    if (color == _shownColor) return;
    _shownColor = color;
    QPalette palette;
    if (color.isValid())
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            palette.setColor(role, color);
    widget()->setPalette(palette);
}

namespace {

std::unique_ptr<ControlBinder> binderFor(Form& form, int control, const Desk& desk,
                                         const FormChoosers& choosers, QWidget* parent) {
    switch (form.spec(control).kind) {
        case ControlKind::Text:
            return std::make_unique<LineBinder>(form, control, parent);
        case ControlKind::Number:
            return std::make_unique<NumberBinder>(form, control, parent);
        case ControlKind::Area:
            return std::make_unique<AreaBinder>(form, control, parent);
        case ControlKind::Combo:
            return std::make_unique<ComboBinder>(form, control, desk.pickLists, parent);
        case ControlKind::Date:
            return std::make_unique<DateBinder>(form, control, parent);
        case ControlKind::Time:
            return std::make_unique<TimeBinder>(form, control, parent);
        case ControlKind::PopUp:
            if (form.spec(control).spread)
                return std::make_unique<RadioBinder>(form, control, desk.strings, parent);
            return std::make_unique<PopUpBinder>(form, control, desk.strings, parent);
        case ControlKind::Switch:
            return std::make_unique<SwitchBinder>(form, control, parent);
        case ControlKind::Slider:
            return std::make_unique<SliderBinder>(form, control, parent);
        case ControlKind::Caption:
            return std::make_unique<CaptionBinder>(form, control, parent);
        case ControlKind::Image:
            return std::make_unique<ImageBinder>(form, control, desk, choosers, parent);
        case ControlKind::Color:
            return std::make_unique<ColorBinder>(form, control, choosers, parent);
        case ControlKind::Gauge:
            return std::make_unique<GaugeBinder>(form, control, desk.strings, parent);
    }
    throw std::logic_error("a control of no kind");
}

}  // namespace

std::unique_ptr<ControlBinder> makeBinder(Form& form, int control, const Desk& desk,
                                          const FormChoosers& choosers, QWidget* parent) {
    auto binder = binderFor(form, control, desk, choosers, parent);
    binder->widget()->setObjectName(QLatin1String(form.spec(control).name));
    binder->refresh();
    return binder;
}

}  // namespace sargan
