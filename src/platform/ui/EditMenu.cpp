#include "platform/ui/EditMenu.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

#include "platform/ui/DocumentWindow.h"
#include "platform/ui/UndoGate.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

QWidget* focusField() {
    return UndoGate::fieldOf(QApplication::focusWidget());
}

/// Calls the same-named slot of whichever text field has the keyboard; answers whether there was one.
bool toField(const char* slot) {
    QWidget* field = focusField();
    return field && QMetaObject::invokeMethod(field, slot);
}

bool isWritable(const QWidget* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field)) return !line->isReadOnly();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(field)) return !area->isReadOnly();
    return false;
}

bool hasSelection(const QWidget* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field)) return line->hasSelectedText();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(field))
        return area->textCursor().hasSelection();
    return false;
}

QString withName(const Strings& strings, const Message<QString>& message, const QString& plain,
                 const QString& name) {
    return name.isEmpty() ? plain : strings.text(message, strings.ui(name.toUtf8().constData()));
}

}  // namespace

EditMenu::EditMenu(DocumentWindow& window) : QObject(&window), _window(window) {
    const Strings& strings = window.document().strings();
    _menu = new QMenu(strings.ui("&Edit"), &window);
    _undo = add("undo", strings.ui("Undo"), {QKeySequence(u"Ctrl+Z"_s)});
    _redo = add("redo", strings.ui("Redo"), {QKeySequence(u"Shift+Ctrl+Z"_s), QKeySequence(u"Ctrl+Y"_s)});
    _menu->addSeparator();
    _cut = add("cut", strings.ui("Cut"), {QKeySequence::Cut});
    _copy = add("copy", strings.ui("Copy"), {QKeySequence::Copy});
    _paste = add("paste", strings.ui("Paste"), {QKeySequence::Paste});
    _selectAll = add("selectAll", strings.ui("Select All"), {QKeySequence::SelectAll});
    connect(_undo, &QAction::triggered, this, &EditMenu::undo);
    connect(_redo, &QAction::triggered, this, &EditMenu::redo);
    connect(_cut, &QAction::triggered, this, [] { toField("cut"); });
    connect(_copy, &QAction::triggered, this, &EditMenu::copy);
    connect(_paste, &QAction::triggered, this, [] { toField("paste"); });
    connect(_selectAll, &QAction::triggered, this, [this] {
        if (!toField("selectAll")) _window.selectEverything();
    });
    if (window.canFind()) {
        _menu->addSeparator();
        _find = add("find", strings.ui("Find…"), {QKeySequence::Find});
        connect(_find, &QAction::triggered, this, [this] { _window.startFind(); });
    }
    connect(_menu, &QMenu::aboutToShow, this, &EditMenu::updateAll);
    // A greyed command would keep its key from working later, when it does apply.
    connect(_menu, &QMenu::aboutToHide, this, &EditMenu::enableAll);
    connect(&window.document(), &Document::contentChanged, this, &EditMenu::updateUndo);
    updateUndo();
}

QAction* EditMenu::add(const char* name, const QString& text, const QList<QKeySequence>& keys) {
    QAction* action = _menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    return action;
}

void EditMenu::undo() {
    if (UndoGate::canUndo(focusField())) {
        toField("undo");
        return;
    }
    _window.storePending();
    _window.document().undo();
}

void EditMenu::redo() {
    if (UndoGate::canRedo(focusField())) {
        toField("redo");
        return;
    }
    _window.storePending();
    _window.document().redo();
}

void EditMenu::updateUndo() {
    const Document& document = _window.document();
    const Strings& strings = document.strings();
    const Message<QString> undoNamed{"Interface", "Undo: %@", "Undo: %@"};
    const Message<QString> redoNamed{"Interface", "Redo: %@", "Redo: %@"};
    _undo->setText(withName(strings, undoNamed, strings.ui("Undo"),
                            document.canUndo() ? document.undoName() : QString()));
    _redo->setText(withName(strings, redoNamed, strings.ui("Redo"),
                            document.canRedo() ? document.redoName() : QString()));
}

void EditMenu::updateAll() {
    const QWidget* field = focusField();
    const Document& document = _window.document();
    updateUndo();
    _undo->setEnabled(UndoGate::canUndo(field) || document.canUndo() || _window.mayHavePending());
    _redo->setEnabled(UndoGate::canRedo(field) || document.canRedo());
    _cut->setEnabled(isWritable(field) && hasSelection(field));
    _copy->setEnabled(!field || hasSelection(field));
    _paste->setEnabled(isWritable(field) && !QApplication::clipboard()->text().isEmpty());
}

void EditMenu::enableAll() {
    for (QAction* action : {_undo, _redo, _cut, _copy, _paste}) action->setEnabled(true);
}

void EditMenu::copy() {
    if (toField("copy")) return;
    const QString text = _window.copiedText();
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

}  // namespace sargan
