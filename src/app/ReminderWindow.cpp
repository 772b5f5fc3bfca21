#include "app/ReminderWindow.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "platform/ui/UndoGate.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString textKey = u"pense bete text"_s;
const QString atStartKey = u"pense bete"_s;

}  // namespace

ReminderWindow::ReminderWindow(Desk& desk) : _desk(desk), _text(new QPlainTextEdit), _atStart(new QCheckBox) {
    setObjectName(u"penseBeteWindow"_s);
    resize(420, 320);
    _text->setObjectName(u"penseBeteText"_s);
    _text->setPlainText(desk.defaults.text(textKey));
    _atStart->setObjectName(u"penseBeteSwitch"_s);
    _atStart->setChecked(desk.defaults.boolean(atStartKey));
    retranslate();
    UndoGate::guard(_text);
    auto* whole = new QVBoxLayout(this);
    whole->addWidget(_text);
    whole->addWidget(_atStart);
    connect(_atStart, &QCheckBox::clicked, this, &ReminderWindow::store);
}

void ReminderWindow::retranslate() {
    setWindowTitle(_desk.strings.ui("Reminder note"));
    _text->setAccessibleName(windowTitle());
    _text->setPlaceholderText(_desk.strings.ui("What you want to be reminded of"));
    _atStart->setText(_desk.strings.ui("Show when the program starts"));
}

void ReminderWindow::bringToFront() {
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
}

void ReminderWindow::store() {
    if (_text->toPlainText() != _desk.defaults.text(textKey))
        _desk.defaults.store(textKey, _text->toPlainText());
    if (_atStart->isChecked() != _desk.defaults.boolean(atStartKey))
        _desk.defaults.store(atStartKey, _atStart->isChecked());
}

void ReminderWindow::closeEvent(QCloseEvent* event) {
    store();
    event->accept();
    hide();
    Q_EMIT closed();
}

void ReminderWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && !isActiveWindow()) store();
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}

}  // namespace sargan
