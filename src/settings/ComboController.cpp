#include "settings/ComboController.h"

namespace sargan {

namespace {

std::vector<ControlSpec> controlsOf(const PickListEditorSpec& spec) {
    std::vector<ControlSpec> controls;
    for (const EditedList& list : spec.lists) {
        controls.push_back({.name = list.entryField, .kind = ControlKind::Text});
        controls.push_back({.name = list.countField, .kind = ControlKind::Caption});
    }
    return controls;
}

}  // namespace

ComboController::ComboController(const PickListEditorSpec& spec, Desk& desk)
    : _spec(spec), _desk(desk), _form(controlsOf(spec)), _selections(qsizetype(spec.lists.size())) {
    for (int list = 0; list < int(spec.lists.size()); ++list) {
        const EditedList& edited = spec.lists[std::size_t(list)];
        _form.addAction(QLatin1String(edited.addAction), [this, list] { add(list); });
        _form.addAction(QLatin1String(edited.deleteAction), [this, list] { remove(list); });
        showCount(list);
    }
}

void ComboController::prepare() {
    for (int list = 0; list < int(_spec.lists.size()); ++list) {
        if (_spec.reloads) _desk.pickLists.load(keyOf(list));
        showCount(list);
    }
}

void ComboController::select(int list, const QList<qsizetype>& rows) {
    _selections[list] = rows;
}

void ComboController::add(int list) {
    const QString text = _form.text(ControlName{_spec.lists[std::size_t(list)].entryField});
    _desk.pickLists.append(keyOf(list), text);
    _desk.pickLists.sortAndStore(keyOf(list));
    clearEntry(list);
    showCount(list);
}

void ComboController::remove(int list) {
    if (_selections[list].isEmpty()) return;
    if (mayErase()) {
        _desk.pickLists.removeAt(keyOf(list), std::exchange(_selections[list], {}));
        showCount(list);
        _desk.pickLists.store(keyOf(list));
    }
    clearEntry(list);
}

bool ComboController::mayErase() const {
    _desk.prompt.beep();
    const QStringList buttons{_desk.strings.text({"Main", "OK", "OK"}),
                              _desk.strings.text({"Main", "Cancel"})};
    return _desk.prompt.ask(_desk.strings.text({"Main", "Erase selection"}), buttons) == 0;
}

void ComboController::clearEntry(int list) {
    _form.setText(ControlName{_spec.lists[std::size_t(list)].entryField}, QString());
}

void ComboController::showCount(int list) {
    _form.setText(
        ControlName{_spec.lists[std::size_t(list)].countField},
        _desk.strings.text(Message<int>{"Carnet", "Entries"}, int(_desk.pickLists.list(keyOf(list)).size())));
}

}  // namespace sargan
