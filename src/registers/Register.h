#pragma once

#include "platform/document/RecordDocument.h"
#include "platform/document/RecordEditor.h"
#include "platform/document/TableSource.h"
#include "platform/form/Form.h"
#include "registers/RegisterCard.h"
#include "registers/RegisterColumnSort.h"
#include "registers/RegisterDesign.h"

namespace sargan {

/// A register as its windows and the command line see it, whatever its records are: one list, one form, one
/// current row. The operations are the same in every register; design().operations says what each is called.
class Register : public RecordEditor, public TableSource {
public:
    Register(const RegisterDesign& design, std::vector<ControlSpec> controls, Document& document);

    const RegisterDesign& design() const { return _design; }
    Document& registerDocument() const { return _document; }
    Form& form() { return _form; }
    const Form& form() const { return _form; }

    // --- The list; each change is one undo step and marks the document edited ---

    /// Blanks the form, lets `fill` put in values, appends the record built from it and selects it. Answers
    /// its row, or -1 when the document was opened to look at only.
    qsizetype addRecord(const std::function<void()>& fill) override;
    /// Replaces the record at the selected row by one built from the form, unless both are the same.
    void updateRecord() override;
    /// The same, when the person has the form open and may have typed into it.
    void storeForm();
    /// Removes all selected records, after a question. Answers whether it was done.
    bool deleteRecords() override;
    /// Stores the form, then moves one row up or down.
    void previous() { moveBy(-1); }
    void next() { moveBy(1); }

    // --- Rows dragged within the table, for registers that name them ---

    /// Whether rows may be dropped, which is always between two rows.
    bool validateDrop() const;
    /// A drop puts the last record into the list once more, whatever was dropped and wherever, and is no
    /// edit. Answers false for anything but the register's own rows.
    bool acceptDrop(const QString& type);

    // --- Selection ---

    virtual const Selection& selectedRows() const = 0;
    qsizetype selectedRow() const { return selectedRows().isEmpty() ? -1 : selectedRows().first(); }
    /// What the person selects in the table: pending edits of the form are stored first.
    void chooseRows(const Selection& rows);
    /// Selects exactly this row and scrolls to it; with the flag false it is deselected again.
    void selectLast(qsizetype index, bool selected);
    qsizetype currentIndex() const { return _currentIndex; }
    /// What a person knows the record at this row by: its first column.
    QString recordTitle(qsizetype row) const { return tableCell(row, 0).text; }
    bool canGoBack() const { return selectedRow() > 0; }
    bool canGoOn() const { return rowCount() > 0 && selectedRow() < rowCount() - 1; }

    // --- The form ---

    Form& editForm() override { return _form; }
    void blankForm() override;
    /// The control that shows the card's date to this moment.
    void resetDateToNow();
    /// What follows from the list and from the controls' values.
    void refresh();
    /// Whether the edit form is on screen, so that what was typed into it counts.
    void setFormOpen(bool open) { _formOpen = open; }

    // --- Synthesis card ---

    virtual bool hasCard() const = 0;
    /// The card of the record at this row.
    virtual StyledText card(qsizetype row) const = 0;

    // --- Table ---

    qsizetype tableRows() const override { return rowCount(); }
    void clickTableColumn(const QString& identifier) override;
    QString sortedColumn() const override { return _sort.column(); }
    bool isSortAscending() const override { return _sort.isAscending(); }
    QString tableCount() const override;

    /// Called when a row is to be in view.
    std::function<void(qsizetype row)> onScroll;

protected:
    Desk& desk() const { return _document.desk(); }
    /// The selected record into the form.
    void loadSelected();

    // What only the document with its record class can do.
    virtual void loadRow(qsizetype row) = 0;
    virtual qsizetype appendFromForm() = 0;
    /// As a part of the undo step before, when `amends`.
    virtual void replaceFromForm(qsizetype row, bool amends) = 0;
    virtual void removeSelected() = 0;
    virtual void repeatLastRecord() = 0;
    /// Throws UnknownKeyError for an unknown column.
    virtual void sortRows(const QString& identifier, bool ascending) = 0;
    virtual void checkColumn(const QString& identifier) const = 0;
    virtual quint64 listState() const = 0;

    virtual void refreshOwn() {}
    virtual void blankOwn() {}
    virtual void carryOver() {}
    virtual void editedOwn(int) {}

private:
    void moveBy(int rows);
    void controlEdited(int control);
    void storeSlider(int control);

    const RegisterDesign& _design;
    Document& _document;
    Form _form;
    RegisterColumnSort _sort;
    qsizetype _currentIndex = -1;
    bool _formOpen = false;
    bool _isAdding = false;
    int _sliderStored = -1;    ///< the slider whose last value was stored …
    quint64 _sliderState = 0;  ///< … in this state of the list
};

/// Every register's form has this caption beside its own controls.
namespace registercontrol {
inline constexpr ControlName count{"countField"};
}

}  // namespace sargan
