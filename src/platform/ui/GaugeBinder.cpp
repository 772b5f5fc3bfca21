#include "platform/ui/GaugeBinder.h"

#include <QProgressBar>
#include <cmath>

namespace sargan {

namespace {

/// Finer than any bar on a screen.
constexpr int fullBar = 10000;

}  // namespace

GaugeBinder::GaugeBinder(Form& form, int control, const Strings& strings, QWidget* parent)
    : ControlBinder(form, control), _strings(strings), _bar(new QProgressBar(parent)) {
    _bar->setRange(0, fullBar);
    _bar->setTextVisible(form.spec(control).numbered);
}

QWidget* GaugeBinder::widget() const {
    return _bar;
}

void GaugeBinder::show(const ControlState& state) {
    const double share = std::isnan(state.level) ? 0 : std::clamp(state.level / 100, 0.0, 1.0);
    _bar->setValue(int(share * fullBar));
    // A share of nothing has no number.
    _bar->setFormat(std::isfinite(state.level) ? form().shownText(control(), _strings) : QStringLiteral("–"));
}

}  // namespace sargan
