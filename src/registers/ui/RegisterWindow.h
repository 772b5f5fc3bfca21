#pragma once

#include "platform/ui/DocumentWindow.h"
#include "platform/ui/Printing.h"
#include "registers/Register.h"

class QLabel;

namespace sargan {

class RegisterEditWindow;
class RegisterTableView;
class SynthesisWindow;

/// The list window of any register: its records in a table, the toolbar, how many there are.
class RegisterWindow : public DocumentWindow {
    Q_OBJECT

public:
    explicit RegisterWindow(Register& shown);
    ~RegisterWindow() override;

    Register& shownRegister() const { return _register; }
    RegisterTableView& table() const { return *_table; }
    /// Null until they were opened once.
    RegisterEditWindow* editWindowIfMade() const { return _edit.get(); }
    SynthesisWindow* synthesisWindowIfMade() const { return _synthesis.get(); }
    /// Actions whose keys are to work in the edit window as well.
    void shareWithEditWindow(const QList<QAction*>& actions) { _shared = actions; }

    void storePending() override { _register.storeForm(); }
    bool mayHavePending() const override;
    QMenu* makeKindMenu() override;
    void selectEverything() override;
    QString copiedText() const override;

    QJsonObject openParts() const override;
    void reopenParts(const QJsonObject& parts) override;

    void addRecord();
    void deleteRecords();
    /// The edit window on the first selected record, or on none.
    void editWindow();
    void synthesisWindow();
    /// Printing, preview and PDF of the list; nothing is selected then.
    PrintActions& printing() const { return *_printing; }

Q_SIGNALS:
    void saveWanted();

protected:
    void addToPlace(QJsonObject& place) const override;
    void readOnlyChanged(bool readOnly) override;

private:
    QAction* action(const char* name, const char* icon, const QString& text, const QList<QKeySequence>& keys,
                    void (RegisterWindow::*run)());
    void makeActions();
    void makeTable();
    void makeToolbar();
    QList<QAction*> toolActions(const RegisterToolbar& bar);
    void runTool(const QByteArray& identifier);
    std::unique_ptr<Printable> printableList();
    void observe();
    void previous() { _register.previous(); }
    void next() { _register.next(); }
    void showSelection();
    void validate();
    void showCount();
    SynthesisWindow& synthesis();

    Register& _register;
    RegisterTableView* _table;
    QLabel* _count;
    QAction* _add = nullptr;
    QAction* _openEdit = nullptr;
    QAction* _delete = nullptr;
    QAction* _previous = nullptr;
    QAction* _next = nullptr;
    QAction* _card = nullptr;
    PrintActions* _printing = nullptr;
    QList<QAction*> _tools;  ///< of both toolbars, named by their identifiers
    QList<QAction*> _editTools;
    std::unique_ptr<RegisterEditWindow> _edit;
    std::unique_ptr<SynthesisWindow> _synthesis;
    QList<QAction*> _shared;
};

}  // namespace sargan
