#pragma once

#include "platform/desk/Desk.h"
#include "platform/form/Form.h"
#include "settings/PickListEditors.h"

namespace sargan {

/// What an editor of pick lists does: entries are added and deleted in the list in memory, which every combo
/// box reads, and each change is stored at once. The form holds, for each list, the field for a new entry and
/// the count, and its buttons are the add and delete actions.
class ComboController {
public:
    ComboController(const PickListEditorSpec& spec, Desk& desk);

    const PickListEditorSpec& spec() const { return _spec; }
    Form& form() { return _form; }
    Desk& desk() const { return _desk; }

    /// Before the window is shown: the lists of the registers come from the settings anew.
    void prepare();
    QStringList entries(int list) const { return _desk.pickLists.list(keyOf(list)); }

    /// How many entries a list has, in words, into its count field.
    void showCount(int list);

    /// The selected rows of a list's table.
    void select(int list, const QList<qsizetype>& rows);
    const QList<qsizetype>& selection(int list) const { return _selections[list]; }

    /// The entry field's text into the list, whatever it is, and the list in order.
    void add(int list);
    /// The selected entries out of the list, after one question; without a selection nothing happens.
    void remove(int list);

private:
    QString keyOf(int list) const { return QLatin1String(_spec.lists[std::size_t(list)].key); }
    void clearEntry(int list);
    bool mayErase() const;

    const PickListEditorSpec& _spec;
    Desk& _desk;
    Form _form;
    QList<QList<qsizetype>> _selections;
};

}  // namespace sargan
