#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace sargan {

class DocumentWindow;

/// The Edit menu of a document window. Its commands go to the text field that has the keyboard when there
/// is one, else to the document.
class EditMenu : public QObject {
    Q_OBJECT

public:
    explicit EditMenu(DocumentWindow& window);

    QMenu* menu() const { return _menu; }
    /// Undo and redo, for windows beside the document's own.
    QList<QAction*> undoActions() const { return {_undo, _redo}; }

private:
    QAction* add(const char* name, const QString& text, const QList<QKeySequence>& keys);
    void undo();
    void redo();
    void updateUndo();
    void updateAll();
    void enableAll();
    void copy();

    DocumentWindow& _window;
    QMenu* _menu;
    QAction* _undo;
    QAction* _redo;
    QAction* _cut;
    QAction* _copy;
    QAction* _paste;
    QAction* _selectAll;
    QAction* _find = nullptr;
};

}  // namespace sargan
