#include "registers/Register.h"

#include <QScopedValueRollback>

#include "platform/desk/PickListOffer.h"

namespace sargan {

namespace {

std::vector<ControlSpec> withCount(std::vector<ControlSpec> controls) {
    controls.push_back({.name = registercontrol::count.text, .kind = ControlKind::Caption});
    return controls;
}

}  // namespace

Register::Register(const RegisterDesign& design, std::vector<ControlSpec> controls, Document& document)
    : _design(design), _document(document), _form(withCount(std::move(controls))) {
    _form.addAction(QStringLiteral("blankFields"), [this] { blankForm(); });
    if (design.nowControl) _form.addAction(QStringLiteral("resetDateToNow"), [this] { resetDateToNow(); });
    _form.onEndEditing = [this](int control) { controlEdited(control); };
    QObject::connect(&document, &Document::contentChanged, &_form, [this] { loadSelected(); });
    QObject::connect(&document, &Document::selectionChanged, &_form, [this] {
        _currentIndex = selectedRow();
        loadSelected();
    });
}

qsizetype Register::addRecord(const std::function<void()>& fill) {
    if (_document.isReadOnly()) return -1;
    qsizetype row = -1;
    {
        // While the new record is being made, nothing that is filled in belongs to the selected one.
        const QScopedValueRollback adding(_isAdding, true);
        blankForm();
        carryOver();
        if (fill) fill();
        row = appendFromForm();
    }
    selectLast(row, true);
    loadSelected();
    return row;
}

void Register::updateRecord() {
    const qsizetype row = selectedRow();
    if (row < 0 || _isAdding || _document.isReadOnly()) return;
    replaceFromForm(row, false);
}

void Register::storeForm() {
    if (_formOpen) updateRecord();
}

bool Register::deleteRecords() {
    if (selectedRows().isEmpty() || _document.isReadOnly()) return false;
    const Strings& strings = desk().strings;
    desk().prompt.beep();
    const QStringList buttons{strings.text({"Main", "OK", "OK"}), strings.text({"Main", "Cancel"})};
    if (desk().prompt.ask(strings.text({"Main", "Erase card", "\r\rerror ! "}), buttons) != 0) return false;
    removeSelected();
    return true;
}

bool Register::validateDrop() const {
    if (!_design.draggedRows) return false;
    desk().log.line(QStringLiteral("validate Drop 2"));
    return !_document.isReadOnly();
}

bool Register::acceptDrop(const QString& type) {
    if (!_design.draggedRows || type != QLatin1String(_design.draggedRows) || _document.isReadOnly())
        return false;
    desk().log.line(QStringLiteral("validate Drop 3"));
    if (rowCount() > 0) repeatLastRecord();
    return true;
}

void Register::moveBy(int rows) {
    updateRecord();
    const qsizetype row = selectedRow();
    if (row < 0) return;
    selectLast(row + rows, true);
}

void Register::chooseRows(const Selection& rows) {
    storeForm();
    selectRows(rows);
}

void Register::selectLast(qsizetype index, bool selected) {
    if (index < 0 || index >= rowCount()) return;
    selectRows({index});
    if (onScroll) onScroll(index);
    if (!selected) selectRows({});
}

void Register::loadSelected() {
    if (_isAdding) return;
    if (const qsizetype row = selectedRow(); row >= 0) loadRow(row);
    refresh();
}

namespace {

void makeBlank(Form& form, int control) {
    const ControlSpec& spec = form.spec(control);
    switch (spec.kind) {
        case ControlKind::Text:
        case ControlKind::Number:
        case ControlKind::Area:
        case ControlKind::Combo:
            return form.setText(control, QLatin1String(""));
        case ControlKind::PopUp:
            return form.setTag(control, spec.menu.empty() ? 0 : spec.menu.front().tag);
        case ControlKind::Switch:
            return form.setTag(control, 0);
        case ControlKind::Slider:
            return form.setTag(control, spec.minimum);
        case ControlKind::Date:
        case ControlKind::Time:
            return form.setDate(control, Moment());
        case ControlKind::Image:
            return form.setImage(control, QByteArray());
        default:
            return;
    }
}

void setBlank(Form& form, const BlankValue& value, const Desk& desk) {
    const int control = form[ControlName{value.control}];
    switch (value.what) {
        case BlankValue::What::Kept:
            return;
        case BlankValue::What::Text:
            return form.setText(control, QString::fromUtf8(value.text));
        case BlankValue::What::Words:
            return form.setText(control, desk.strings.text(value.words));
        case BlankValue::What::Tag:
            return form.setTag(control, value.tag);
        case BlankValue::What::Now:
            return form.setDate(control, Moment::fromDateTime(desk.clock.now()));
        case BlankValue::What::Date:
            return form.setDate(control, Moment::fromIso(QLatin1String(value.text)));
    }
}

}  // namespace

void Register::blankForm() {
    if (_design.blankClearsSelection) selectRows({});
    std::vector<bool> isSet(std::size_t(_form.count()), false);
    for (const BlankValue& value : _design.blank) {
        setBlank(_form, value, desk());
        isSet[std::size_t(_form[ControlName{value.control}])] = true;
    }
    for (int control = 0; control < _form.count(); ++control)
        if (!isSet[std::size_t(control)]) makeBlank(_form, control);
    blankOwn();
    refresh();
    if (_design.blankFocus) _form.setFocus(_form[ControlName{_design.blankFocus}]);
}

void Register::resetDateToNow() {
    if (!_design.nowControl) return;
    _form.setDate(_form[ControlName{_design.nowControl}], Moment::fromDateTime(desk().clock.now()));
    refresh();
}

void Register::refresh() {
    _form.setText(registercontrol::count, tableCount());
    refreshOwn();
}

void Register::controlEdited(int control) {
    editedOwn(control);
    refresh();
    const ControlSpec& spec = _form.spec(control);
    if (spec.kind == ControlKind::Combo && spec.pickList) {
        offerToPickList(desk(), QLatin1String(spec.pickList), _form.text(control));
        updateRecord();
    } else if (spec.kind == ControlKind::Slider) {
        storeSlider(control);
    }
}

void Register::storeSlider(int control) {
    const qsizetype row = selectedRow();
    if (row < 0 || _isAdding || _document.isReadOnly()) return;
    // A slider says every value that it is dragged over; all of them are one step.
    const quint64 before = listState();
    replaceFromForm(row, _sliderStored == control && _sliderState == before);
    if (listState() == before) return;
    _sliderStored = control;
    _sliderState = listState();
}

void Register::clickTableColumn(const QString& identifier) {
    checkColumn(identifier);
    storeForm();
    sortRows(identifier, _sort.click(identifier));
}

QString Register::tableCount() const {
    const Strings& strings = desk().strings;
    return rowCount() == 1 ? strings.text(_design.count.one)
                           : strings.text(_design.count.many, int(rowCount()));
}

}  // namespace sargan
