#include "platform/ui/TextBinders.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "platform/ui/UndoGate.h"

namespace sargan {

namespace {

int widthOf(const QWidget* widget, int characters) {
    return widget->fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + 14;
}

void selectFor(QLineEdit* edit) {
    edit->setFocus(Qt::OtherFocusReason);
    edit->selectAll();
}

}  // namespace

LineBinder::LineBinder(Form& form, int control, QWidget* parent)
    : ControlBinder(form, control), _edit(new QLineEdit(parent)) {
    _edit->setMinimumWidth(widthOf(_edit, 4));
    UndoGate::guard(_edit);
    connect(_edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        touch();
        this->form().setText(this->control(), present(text));
    });
    connect(_edit, &QLineEdit::returnPressed, this, [this] { endEditing(); });
    watchLeaving(_edit);
}

QWidget* LineBinder::widget() const {
    return _edit;
}

void LineBinder::setCharacters(int count) {
    _edit->setFixedWidth(widthOf(_edit, count));
}

void LineBinder::takeFocus() {
    selectFor(_edit);
}

void LineBinder::show(const ControlState& state) {
    if (_edit->text() == state.text) return;
    _edit->setText(state.text);
    if (!_edit->hasFocus()) _edit->setCursorPosition(0);
}

void LineBinder::applyLock(bool locked, bool enabled) {
    _edit->setReadOnly(locked);
    _edit->setEnabled(enabled);
}

NumberBinder::NumberBinder(Form& form, int control, QWidget* parent) : LineBinder(form, control, parent) {
    edit()->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

AreaBinder::AreaBinder(Form& form, int control, QWidget* parent)
    : ControlBinder(form, control), _edit(new QPlainTextEdit(parent)) {
    _edit->setTabChangesFocus(true);
    _edit->setMinimumHeight(_edit->fontMetrics().lineSpacing() * 4);
    UndoGate::guard(_edit);
    watchLeaving(_edit);
    connect(_edit, &QPlainTextEdit::textChanged, this, [this] {
        touch();
        this->form().setText(this->control(), present(_edit->toPlainText()));
    });
}

QWidget* AreaBinder::widget() const {
    return _edit;
}

void AreaBinder::show(const ControlState& state) {
    if (_edit->toPlainText() == state.text) return;
    const QSignalBlocker quiet(_edit);
    _edit->setPlainText(state.text);
}

void AreaBinder::applyLock(bool locked, bool enabled) {
    _edit->setReadOnly(locked);
    _edit->setEnabled(enabled);
}

ComboBinder::ComboBinder(Form& form, int control, const PickLists& pickLists, QWidget* parent)
    : ControlBinder(form, control), _pickLists(pickLists), _combo(new QComboBox(parent)) {
    _combo->setEditable(true);
    _combo->setInsertPolicy(QComboBox::NoInsert);
    _combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    _combo->setMinimumContentsLength(5);
    _combo->setFocusPolicy(Qt::StrongFocus);
    _combo->completer()->setCompletionMode(QCompleter::PopupCompletion);
    _combo->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    // A combo box takes the keyboard itself and passes events to its line without anybody seeing them there.
    UndoGate::guard(_combo);
    watchLeaving(_combo);
    _combo->lineEdit()->installEventFilter(this);
    connect(_combo->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) { take(text); });
    connect(_combo->lineEdit(), &QLineEdit::returnPressed, this, [this] { endEditing(); });
    connect(_combo->completer(), qOverload<const QString&>(&QCompleter::activated), this,
            [this](const QString& text) { take(text); });
    connect(_combo, &QComboBox::textActivated, this, [this](const QString& text) {
        take(text);
        endEditing();
    });
}

QWidget* ComboBinder::widget() const {
    return _combo;
}

void ComboBinder::setCharacters(int count) {
    _combo->setFixedWidth(widthOf(_combo, count) + 24);
}

void ComboBinder::takeFocus() {
    selectFor(_combo->lineEdit());
}

bool ComboBinder::eventFilter(QObject* watched, QEvent* event) {
    // The wheel scrolls the pane; it must not change a value that merely lies under the pointer.
    if (event->type() == QEvent::Wheel && !_combo->hasFocus() && !_combo->lineEdit()->hasFocus()) {
        event->ignore();
        return true;
    }
    const bool comes = event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress;
    if (comes) offerChoices();
    if (watched != _combo) return false;
    // While typing, upper and lower case are alike for the completer. On Return and on leaving they are not,
    // or the combo box would replace what was typed by an entry in other letters.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        matchLetters(key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab);
    }
    if (event->type() == QEvent::FocusOut) matchLetters(true);
    return ControlBinder::eventFilter(watched, event);
}

void ComboBinder::matchLetters(bool exactly) {
    QCompleter* completer = _combo->completer();
    if (completer->popup()->isVisible()) return;
    completer->setCaseSensitivity(exactly ? Qt::CaseSensitive : Qt::CaseInsensitive);
}

QStringList ComboBinder::choices() const {
    const ControlSpec& spec = form().spec(control());
    if (spec.pickList) return _pickLists.list(QLatin1String(spec.pickList));
    QStringList texts;
    for (const char* choice : spec.choices) texts << QString::fromUtf8(choice);
    return texts;
}

void ComboBinder::offerChoices() {
    const QStringList wanted = choices();
    QStringList offered;
    for (int i = 0; i < _combo->count(); ++i) offered << _combo->itemText(i);
    if (offered == wanted) return;
    const QString text = _combo->currentText();
    const QSignalBlocker quiet(_combo);
    _combo->clear();
    _combo->addItems(wanted);
    _combo->setCurrentIndex(-1);
    _combo->setEditText(text);
}

void ComboBinder::take(const QString& text) {
    touch();
    form().setText(control(), present(text));
}

void ComboBinder::show(const ControlState& state) {
    if (_combo->currentText() == state.text) return;
    const QSignalBlocker quiet(_combo);
    _combo->setCurrentIndex(-1);
    _combo->setEditText(state.text);
    if (!_combo->lineEdit()->hasFocus()) _combo->lineEdit()->setCursorPosition(0);
}

void ComboBinder::applyLock(bool locked, bool enabled) {
    _combo->lineEdit()->setReadOnly(locked);
    _combo->setEnabled(enabled && !locked);
}

CaptionBinder::CaptionBinder(Form& form, int control, QWidget* parent)
    : ControlBinder(form, control), _label(new QLabel(parent)) {
    _label->setTextFormat(Qt::PlainText);
    _label->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

QWidget* CaptionBinder::widget() const {
    return _label;
}

void CaptionBinder::show(const ControlState& state) {
    _label->setText(state.text);
}

}  // namespace sargan
