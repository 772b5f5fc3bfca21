#include "platform/ui/UndoGate.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace sargan {

void UndoGate::guard(QWidget* field) {
    field->installEventFilter(new UndoGate(field));
}

QWidget* UndoGate::fieldOf(QWidget* widget) {
    if (const auto* combo = qobject_cast<QComboBox*>(widget)) return combo->lineEdit();
    return qobject_cast<QLineEdit*>(widget) || qobject_cast<QPlainTextEdit*>(widget) ? widget : nullptr;
}

bool UndoGate::canUndo(const QWidget* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field))
        return !line->isReadOnly() && line->isUndoAvailable();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(field))
        return !area->isReadOnly() && area->document()->isUndoAvailable();
    return false;
}

bool UndoGate::canRedo(const QWidget* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field))
        return !line->isReadOnly() && line->isRedoAvailable();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(field))
        return !area->isReadOnly() && area->document()->isRedoAvailable();
    return false;
}

bool UndoGate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const QWidget* field = fieldOf(qobject_cast<QWidget*>(watched));
    const bool pass = (key->matches(QKeySequence::Undo) && !canUndo(field)) ||
                      (key->matches(QKeySequence::Redo) && !canRedo(field));
    if (pass) event->ignore();
    return pass;
}

}  // namespace sargan
