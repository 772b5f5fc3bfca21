#pragma once

#include <QObject>

class QWidget;

namespace sargan {

/// Text fields claim the undo and redo keys even when they have nothing to undo. This lets such a key press
/// pass on to the window's own Undo and Redo.
class UndoGate : public QObject {
    Q_OBJECT

public:
    /// Guards a line edit, a plain text edit or an editable combo box for as long as it lives.
    static void guard(QWidget* field);
    /// The text field that keys typed at this widget go to: itself, or the line of a combo box; null for
    /// others.
    static QWidget* fieldOf(QWidget* widget);
    /// Whether the widget is a text field that has something to undo (redo) itself, and may be changed.
    static bool canUndo(const QWidget* field);
    static bool canRedo(const QWidget* field);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};

}  // namespace sargan
