#include "platform/ui/ChoiceBinders.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QPainter>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>

namespace sargan {

namespace {

/// Whether a wheel turn over a control without the focus is to scroll the pane instead.
bool wheelPasses(const QWidget* widget, QEvent* event) {
    if (event->type() != QEvent::Wheel || widget->hasFocus()) return false;
    event->ignore();
    return true;
}

QPixmap swatch(const QColor& color, const QSize& size, const QColor& frame) {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(frame);
    painter.setBrush(color.isValid() ? QBrush(color) : QBrush(frame, Qt::BDiagPattern));
    painter.drawRect(QRect(QPoint(0, 0), size).adjusted(0, 0, -1, -1));
    return picture;
}

}  // namespace

PopUpBinder::PopUpBinder(Form& form, int control, const Strings& strings, QWidget* parent)
    : ControlBinder(form, control), _combo(new QComboBox(parent)) {
    for (const MenuItem& item : form.spec(control).menu) _combo->addItem(strings.text(item.words), item.tag);
    _combo->setFocusPolicy(Qt::StrongFocus);
    _combo->installEventFilter(this);
    connect(_combo, &QComboBox::activated, this, [this](int index) {
        this->form().setTag(this->control(), _combo->itemData(index).toInt());
        endEditing();
    });
}

QWidget* PopUpBinder::widget() const {
    return _combo;
}

bool PopUpBinder::eventFilter(QObject*, QEvent* event) {
    return wheelPasses(_combo, event);
}

void PopUpBinder::show(const ControlState& state) {
    _combo->setCurrentIndex(_combo->findData(state.tag));
}

RadioBinder::RadioBinder(Form& form, int control, const Strings& strings, QWidget* parent)
    : ControlBinder(form, control), _box(new QWidget(parent)), _buttons(new QButtonGroup(_box)) {
    constexpr int mostInRow = 3;
    auto* grid = new QGridLayout(_box);
    grid->setContentsMargins(0, 0, 0, 0);
    const std::span<const MenuItem> menu = form.spec(control).menu;
    for (int place = 0; place < int(menu.size()); ++place) {
        const MenuItem& item = menu[std::size_t(place)];
        auto* button = new QRadioButton(strings.text(item.words), _box);
        button->setObjectName(
            QStringLiteral("%1_%2").arg(QLatin1String(form.spec(control).name)).arg(item.tag));
        _buttons->addButton(button, place);
        grid->addWidget(button, place / mostInRow, place % mostInRow);
    }
    connect(_buttons, &QButtonGroup::idClicked, this, [this](int place) {
        this->form().setTag(this->control(), this->form().spec(this->control()).menu[std::size_t(place)].tag);
        endEditing();
    });
    _box->setFocusPolicy(Qt::ClickFocus);
    if (!menu.empty()) _box->setFocusProxy(_buttons->button(0));
}

QWidget* RadioBinder::widget() const {
    return _box;
}

void RadioBinder::takeFocus() {
    QAbstractButton* chosen = _buttons->checkedButton();
    (chosen ? chosen : _buttons->button(0))->setFocus(Qt::OtherFocusReason);
}

void RadioBinder::show(const ControlState& state) {
    const std::span<const MenuItem> menu = form().spec(control()).menu;
    // An exclusive group keeps one button down, whatever it is told.
    _buttons->setExclusive(false);
    for (int place = 0; place < int(menu.size()); ++place)
        _buttons->button(place)->setChecked(menu[std::size_t(place)].tag == state.tag);
    _buttons->setExclusive(true);
}

SwitchBinder::SwitchBinder(Form& form, int control, QWidget* parent)
    : ControlBinder(form, control), _box(new QCheckBox(parent)) {
    connect(_box, &QCheckBox::clicked, this, [this](bool on) {
        this->form().setTag(this->control(), on ? 1 : 0);
        endEditing();
    });
}

QWidget* SwitchBinder::widget() const {
    return _box;
}

void SwitchBinder::show(const ControlState& state) {
    _box->setChecked(state.tag != 0);
}

SliderBinder::SliderBinder(Form& form, int control, QWidget* parent)
    : ControlBinder(form, control), _slider(new QSlider(Qt::Horizontal, parent)) {
    const ControlSpec& spec = form.spec(control);
    _slider->setRange(spec.minimum, spec.maximum);
    _slider->setPageStep(1);
    // A mark for every value where that can be told apart, else eight.
    const int values = spec.maximum - spec.minimum;
    _slider->setTickInterval(values <= 20 ? 1 : values / 8);
    _slider->setTickPosition(QSlider::TicksBelow);
    _slider->setFocusPolicy(Qt::StrongFocus);
    _slider->installEventFilter(this);
    connect(_slider, &QSlider::valueChanged, this, [this](int value) {
        this->form().setTag(this->control(), value);
        endEditing();
    });
}

QWidget* SliderBinder::widget() const {
    return _slider;
}

bool SliderBinder::eventFilter(QObject*, QEvent* event) {
    return wheelPasses(_slider, event);
}

void SliderBinder::show(const ControlState& state) {
    // A value beyond the ends is shown at the end, and kept.
    const QSignalBlocker quiet(_slider);
    _slider->setValue(state.tag);
}

ColorBinder::ColorBinder(Form& form, int control, const FormChoosers& choosers, QWidget* parent)
    : ControlBinder(form, control), _choosers(choosers), _well(new QToolButton(parent)) {
    _well->setIconSize(QSize(36, 16));
    _well->setFocusPolicy(Qt::StrongFocus);
    connect(_well, &QToolButton::clicked, this, [this] { choose(); });
}

QWidget* ColorBinder::widget() const {
    return _well;
}

void ColorBinder::show(const ControlState& state) {
    _well->setIcon(swatch(state.color, _well->iconSize(), _well->palette().color(QPalette::Mid)));
    _well->setToolTip(state.color.isValid() ? state.color.name() : QString());
}

void ColorBinder::choose() {
    const QColor chosen = _choosers.color(_well, form().state(control()).color);
    if (!chosen.isValid()) return;
    form().setColor(control(), chosen);
    endEditing();
}

}  // namespace sargan
