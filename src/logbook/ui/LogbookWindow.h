#pragma once

#include "logbook/Carnet.h"
#include "platform/ui/DocumentWindow.h"

namespace sargan {

class DiveEditWindow;
class DiveProfileWindow;
class GraphProfileWindow;
class RenumberSheet;
class SearchBar;
class SourceTableView;

/// The window of a logbook: its dives in a table, the toolbar, the search.
class LogbookWindow : public DocumentWindow {
    Q_OBJECT

public:
    explicit LogbookWindow(Carnet& carnet);
    ~LogbookWindow() override;

    Carnet& carnet() const { return _carnet; }
    SourceTableView& table() const { return *_table; }
    /// Null until it was opened once.
    DiveEditWindow* editWindowIfMade() const { return _edit.get(); }
    /// Actions of this window whose keys are to work in the edit window as well.
    void shareWithEditWindow(const QList<QAction*>& actions) { _shared = actions; }

    void storePending() override { _carnet.storeTyped(); }
    void storeBeforeReplaced() override { _carnet.storeForm(); }
    bool mayHavePending() const override;
    QJsonObject openParts() const override;
    void reopenParts(const QJsonObject& parts) override;
    QMenu* makeKindMenu() override;
    void selectEverything() override;
    QString copiedText() const override;
    bool canFind() const override { return true; }
    void startFind() override;

    void addDive();
    void deleteDive();
    /// The edit window on the first selected dive.
    void editWindow();
    /// The graph of that dive's profile.
    void profileGraph();
    /// The profile of that dive as texts.
    void profilInfo();
    /// Null until it was opened once.
    DiveProfileWindow* profileWindowIfMade() const { return _profileData.get(); }
    GraphProfileWindow* profileGraphIfMade() const { return _graph.get(); }

Q_SIGNALS:
    /// The person wants to renumber: every open logbook is to offer it.
    void renumberingWanted();

protected:
    void addToPlace(QJsonObject& place) const override;
    void readOnlyChanged(bool readOnly) override;

private:
    QAction* action(const char* name, const char* icon, const QString& text, const QString& tip,
                    const QList<QKeySequence>& keys);
    void makeActions();
    void makeTable();
    void makeToolbar();
    void observe();
    void rowsChosen(const Selection& rows);
    void showSelection();
    void contentChanged();
    void validate();
    void showStatus();
    void openRenumberSheet();
    DiveEditWindow& edit();
    GraphProfileWindow& graph();
    DiveProfileWindow& profileData();

    Carnet& _carnet;
    SourceTableView* _table;
    SearchBar* _search = nullptr;
    QLabel* _status;
    QAction* _add = nullptr;
    QAction* _editDive = nullptr;
    QAction* _delete = nullptr;
    QAction* _previous = nullptr;
    QAction* _next = nullptr;
    QAction* _renumber = nullptr;
    QAction* _profil = nullptr;
    QAction* _profilData = nullptr;
    RenumberSheet* _sheet = nullptr;
    std::unique_ptr<DiveEditWindow> _edit;
    std::unique_ptr<DiveProfileWindow> _profileData;
    std::unique_ptr<GraphProfileWindow> _graph;
    QList<QAction*> _shared;
};

}  // namespace sargan
