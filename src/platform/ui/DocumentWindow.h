#pragma once

#include <QMainWindow>
#include <map>
#include <memory>

#include "platform/document/Document.h"

class QLabel;
class QMenu;
class QMimeData;
class QTableView;

namespace sargan {

/// The window of one document: title with the edited mark, a note when the document is open to look at
/// only, place and size kept in the settings, files dropped on it. What its menus do beyond the document
/// (new, open, save, quit) is the program's business; see the signals.
class DocumentWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `name`: under which place and size are remembered, together with what a subclass adds.
    DocumentWindow(Document& document, const QString& name);

    Document& document() const { return _document; }
    /// Puts what was typed but not stored yet into the document.
    virtual void storePending() {}
    /// Whether there may be something to store, and so to undo, that the document does not know of yet.
    virtual bool mayHavePending() const { return false; }
    /// The kind's own menu, between Edit and Window; null when it has none.
    virtual QMenu* makeKindMenu() { return nullptr; }
    /// Edit menu commands, when no text field takes them.
    virtual void selectEverything() {}
    virtual QString copiedText() const { return {}; }
    virtual bool canFind() const { return false; }
    virtual void startFind() {}

    // --- When another window takes this one's place: for another language ---

    /// Stores what the other window would not find in the document; what openParts tells need not be stored.
    virtual void storeBeforeReplaced() { storePending(); }
    /// The windows that belong to this one and are open, and what was typed into them and nowhere else, so that
    /// the other window opens them again as they are.
    virtual QJsonObject openParts() const { return {}; }
    virtual void reopenParts(const QJsonObject&) {}
    /// Things with windows of their own, which the other window takes over as they are; by name.
    std::map<QString, std::shared_ptr<QObject>> companions;

    /// Raises the window and gives it the keyboard.
    void bringToFront();
    /// Stores place, size and what the subclass adds: once, when the window goes.
    void rememberPlace();

Q_SIGNALS:
    /// The person wants to close; the window stays until the program has agreed.
    void closeWanted();
    void filesDropped(const QStringList& paths);
    /// Another window is about to take this one's place.
    void replaced();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

    QJsonObject rememberedPlace() const;
    /// More to remember with the place: column widths.
    virtual void addToPlace(QJsonObject&) const {}
    virtual void readOnlyChanged(bool) {}
    const Strings& strings() const { return _document.strings(); }
    /// The window's content below the note.
    void setContent(QWidget* content);

private:
    void showFile();
    void restorePlace();
    QString placeKey() const { return QStringLiteral("window ") + _name; }

    Document& _document;
    QString _name;
    QLabel* _note = nullptr;
};

/// Makes a table look as in all document windows: whole rows are selected, all rows have one height.
void setUpTable(QTableView* table);

/// The files of this computer among what is dragged.
QStringList localFiles(const QMimeData& dragged);

}  // namespace sargan
