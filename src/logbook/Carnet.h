#pragma once

#include <map>

#include "logbook/DiveForm.h"
#include "logbook/DiveTableSource.h"
#include "logbook/DiveToolbars.h"
#include "logbook/PlongeeArchive.h"
#include "platform/document/RecordDocument.h"
#include "platform/document/RecordEditor.h"

namespace sargan {

class Carnet;

/// The formats that a logbook can be saved as beside its own: type name -> what makes the bytes. Whoever
/// lays the program together fills it, so the logbook does not know its exporters.
using SaveTypes = std::map<QString, std::function<QByteArray(const Carnet&)>>;

/// The dive logbook: an ordered list of dives, its edit form, its search and its renumbering.
class Carnet : public RecordDocument<Plongee>, public RecordEditor {
    Q_OBJECT

public:
    Carnet(const DocumentKind& kind, Desk& desk, const SaveTypes& saveTypes);

    /// "Carnet de plongee" in the current language.
    static constexpr Message<> typeNameKey{"Main", "Carnet de plongee"};

    DiveForm& diveForm() { return _diveForm; }
    Form& form() { return _diveForm.form(); }
    /// The search field, the count of dives found, and the first number of the renumbering sheet.
    Form& panel() { return _panel; }

    QByteArray dataRepresentationOfType(const QString& type) override;
    bool loadDataRepresentation(const QByteArray& bytes, const QString& type) override;
    DocumentSummary summary() const override;
    QList<ToolbarState> toolbars() const override { return diveToolbars(*this); }

    // --- The list; each change is one undo step and marks the document edited ---

    /// Blanks the form, numbers the dive after the last one, lets `fill` put in what is known, builds the
    /// dive from the form, appends it and selects it. Answers its row, or -1 when
    /// the document was opened to look at only.
    qsizetype addDive(const std::function<void()>& fill = {});
    /// The number of a dive that comes after these: 1, or one more than the last one's.
    static int nextNumber(const Records<Plongee>& dives) {
        return dives.isEmpty() ? 1 : int(qint64(dives.last()->noPlongee()) + 1);
    }
    /// Replaces the dive at the selected row by one built from the form. When both are the same in an
    /// archive, nothing changes.
    void updateDive();
    /// The same, when the person has the form open and may have typed into it.
    void storeForm();
    /// All that was typed for the dive at hand, before it gives way: its profile's texts and the form.
    void storeTyped();
    /// Removes all selected dives, after a question. Answers whether it was done.
    bool deleteDive();
    /// Numbers the dives from the panel's number on, in list order. Each is built anew by a form, whose alerts
    /// come once, with the dives concerned.
    void renumDives();
    /// Stores the form, then moves one row up or down. A row that the table does not have selects nothing
    /// new.
    void prevDive();
    void nextDive();

    /// What the person selects in the table: pending edits of the form are stored first.
    void changementSelection(const Selection& rows);
    /// Any change of the selection loads the first selected dive into the form.
    void select(const Selection& rows) override;
    /// Selects exactly this row and scrolls to it; with the flag false it is deselected again.
    void selectLastDive(qsizetype index, bool selected);
    qsizetype currentIndex() const { return _currentIndex; }

    /// Selects the dives whose field contains the panel's search text, upper and lower case alike; a dive
    /// without a value matches. Throws UnknownKeyError on the first dive for a field that dives lack.
    void findTextWithField(const QString& field);
    void findInBateaux() { findTextWithField(QStringLiteral("bateau")); }
    void findInEpaves() { findTextWithField(QStringLiteral("epaves")); }
    void findInNotes() { findTextWithField(QStringLiteral("notes")); }
    void findInPartenaires() { findTextWithField(QStringLiteral("partenaires")); }
    /// Dives have no field "ordi", so this search ends in the unknown-key error whenever there is a dive.
    void findInOrdinateurs() { findTextWithField(QStringLiteral("ordi")); }

    TableSource* table() override { return &_table; }
    DiveTableSource& diveTable() { return _table; }
    /// A number that no other state of the list has.
    quint64 listState() const { return state(); }

    RecordEditor* editor() override { return this; }
    Form& editForm() override { return form(); }
    qsizetype rowCount() const override { return count(); }
    void selectRows(const QList<qsizetype>& rows) override { select(rows); }
    void blankForm() override { _diveForm.blankFields(); }
    qsizetype addRecord(const std::function<void()>& fill) override { return addDive(fill); }
    void updateRecord() override { updateDive(); }
    bool deleteRecords() override { return deleteDive(); }

    /// Whether the edit form is on screen, so that what was typed into it counts.
    void setFormOpen(bool open) { _formOpen = open; }
    /// Called before the open form is stored: the field that is being typed into ends its editing.
    std::function<void()> finishEditing;
    /// Called before the dive at hand gives way: texts of its profile that wait to be put into it are settled.
    std::function<void()> settleProfile;

Q_SIGNALS:
    void scrollWanted(qsizetype row);
    void tableReloadWanted();  ///< "updateTableView"
    void columnsChanged();     ///< "updateColumnsTableView"
    void profileChanged();     ///< "profile"
    void renumSheetWanted();   ///< "renumDives"

private:
    void observe();
    void moveBy(int rows);
    void loadSelected();

    const SaveTypes& _saveTypes;
    DiveForm _diveForm;
    DiveTableSource _table;
    Form _panel;
    qsizetype _currentIndex = -1;
    bool _formOpen = false;
    std::vector<NotificationCenter::Observation> _observations;
};

namespace panelcontrol {
inline constexpr ControlName search{"searchField"};
inline constexpr ControlName found{"foundDivesField"};
inline constexpr ControlName renumNumber{"renumNumberField"};
}  // namespace panelcontrol

}  // namespace sargan
