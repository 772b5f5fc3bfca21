#include "logbook/Carnet.h"

#include "logbook/DiveAlerts.h"

namespace sargan {

namespace {

constexpr ControlSpec panelSpecs[] = {
    {.name = "searchField", .kind = ControlKind::Text},
    {.name = "foundDivesField", .kind = ControlKind::Caption},
    {.name = "renumNumberField", .kind = ControlKind::Number},
};

}  // namespace

Carnet::Carnet(const DocumentKind& kind, Desk& desk, const SaveTypes& saveTypes)
    : RecordDocument(kind, desk, plongeeClass()),
      _saveTypes(saveTypes),
      _diveForm(desk),
      _table(*this),
      _panel(panelSpecs) {
    _panel.setText(panelcontrol::renumNumber, QStringLiteral("1"));
    connect(this, &Document::contentChanged, this, [this] { loadSelected(); });
    observe();
}

void Carnet::observe() {
    const auto on = [this](const char* name, auto receptor) {
        _observations.push_back(
            desk().notifications.observe(QString::fromLatin1(name), [receptor](const void*) { receptor(); }));
    };
    on("updateTableView", [this] { Q_EMIT tableReloadWanted(); });
    on("updateColumnsTableView", [this] {
        _table.displayColumnsInTableView();
        Q_EMIT columnsChanged();
    });
    on("profile", [this] { Q_EMIT profileChanged(); });
    on("updateEditDive", [this] { _diveForm.updateUI(); });
    on("updateDeco", [this] { _diveForm.updateUI(); });
    on("renumDives", [this] { Q_EMIT renumSheetWanted(); });
}

QByteArray Carnet::dataRepresentationOfType(const QString& type) {
    if (type == strings().text(typeNameKey)) {
        desk().log.line(QStringLiteral("CARNET"));
        return archive();
    }
    const auto found = _saveTypes.find(type);
    return found == _saveTypes.end() ? QByteArray() : found->second(*this);
}

bool Carnet::loadDataRepresentation(const QByteArray& bytes, const QString& type) {
    unarchive(bytes);
    if (type != strings().text(typeNameKey)) return false;
    _diveForm.updateUI();
    selectLastDive(count() - 1, false);
    return true;
}

DocumentSummary Carnet::summary() const {
    DocumentSummary summary = RecordDocument::summary();
    Moment first, last;
    for (const auto& dive : records()) {
        const Moment& date = dive->date();
        if (!date.isPresent()) continue;
        if (!first.isPresent() || date.seconds() < first.seconds()) first = date;
        if (!last.isPresent() || date.seconds() > last.seconds()) last = date;
    }
    summary.firstDate = first.iso();
    summary.lastDate = last.iso();
    return summary;
}

qsizetype Carnet::addDive(const std::function<void()>& fill) {
    if (isReadOnly()) return -1;
    _diveForm.blankFields();
    form().setInteger(divecontrol::plongeeNo, nextNumber(records()));
    if (fill) fill();
    Records<Plongee> dives = records();
    dives.append(std::make_shared<const Plongee>(_diveForm.addDiveToList()));
    const qsizetype row = dives.size() - 1;
    perform(QStringLiteral("Add dive"), std::move(dives), {row});
    _currentIndex = row;
    Q_EMIT scrollWanted(row);
    return row;
}

void Carnet::updateDive() {
    const qsizetype row = selectedRow();
    if (row < 0 || isReadOnly()) return;
    auto dive = std::make_shared<const Plongee>(_diveForm.addDiveToList());
    if (sameArchived(*dive, record(row))) return;
    Records<Plongee> dives = records();
    dives[row] = std::move(dive);
    perform(QStringLiteral("Edit dive"), std::move(dives), selection());
}

void Carnet::storeForm() {
    if (!_formOpen) return;
    if (finishEditing) finishEditing();
    updateDive();
}

void Carnet::storeTyped() {
    if (settleProfile) settleProfile();
    storeForm();
}

bool Carnet::deleteDive() {
    if (selection().isEmpty() || isReadOnly()) return false;
    desk().prompt.beep();
    const QStringList buttons{strings().text({"Main", "OK", "OK"}), strings().text({"Main", "Cancel"})};
    if (desk().prompt.ask(strings().text({"Main", "Erase dive"}), buttons) != 0) return false;
    Records<Plongee> kept;
    kept.reserve(count());
    for (qsizetype row = 0; row < count(); ++row)
        if (!std::binary_search(selection().begin(), selection().end(), row)) kept.append(records()[row]);
    perform(QStringLiteral("Delete dives"), std::move(kept), {});
    return true;
}

void Carnet::renumDives() {
    if (isReadOnly()) return;
    storeTyped();
    const qint64 start = _panel.integer(panelcontrol::renumNumber);
    Records<Plongee> dives;
    dives.reserve(count());
    DiveAlerts alerts;
    Desk quiet = deskWithPrompt(desk(), alerts);
    DiveForm builder(quiet);
    for (const auto& dive : records()) {
        const int number = int(start + dives.size());
        alerts.setNumber(number);
        builder.editFields(dive);
        builder.form().setInteger(divecontrol::plongeeNo, number);
        dives.append(std::make_shared<const Plongee>(builder.addDiveToList()));
    }
    const qsizetype last = dives.size() - 1;
    perform(QStringLiteral("Renumber dives"), std::move(dives), {last});
    for (const DiveAlert& alert : alerts.list()) desk().prompt.alert(told(alert, strings()));
}

void Carnet::prevDive() {
    moveBy(-1);
}

void Carnet::nextDive() {
    moveBy(1);
}

void Carnet::moveBy(int rows) {
    if (settleProfile) settleProfile();
    if (_formOpen && finishEditing) finishEditing();
    updateDive();
    _currentIndex = selectedRow();
    if (_currentIndex < 0) return;
    const qsizetype wanted = _currentIndex + rows;
    if (wanted >= 0 && wanted < count()) select({wanted});
    loadSelected();
    Q_EMIT scrollWanted(selectedRow());
}

void Carnet::changementSelection(const Selection& rows) {
    const bool isLeaving = selectedRow() != (rows.isEmpty() ? -1 : rows.first());
    isLeaving ? storeTyped() : storeForm();
    select(rows);
}

void Carnet::select(const Selection& rows) {
    RecordDocument::select(rows);
    _currentIndex = selectedRow();
    loadSelected();
}

void Carnet::selectLastDive(qsizetype index, bool selected) {
    if (index < 0 || index >= count()) return;
    select({index});
    Q_EMIT scrollWanted(index);
    if (!selected) select({});
}

void Carnet::loadSelected() {
    if (selectedRow() >= 0) _diveForm.editFields(records()[selectedRow()]);
}

void Carnet::findTextWithField(const QString& field) {
    storeTyped();
    const QString wanted = _panel.text(panelcontrol::search);
    Selection matches;
    select({});
    for (qsizetype row = 0; row < count(); ++row) {
        const int place = fieldIndex<Plongee>(PlongeeFields::all, field);
        const QVariant value = PlongeeFields::all[std::size_t(place)]->visit(
            record(row), [](const auto& held) { return toVariant(held); });
        if (!value.isValid() || value.toString().contains(wanted, Qt::CaseInsensitive)) matches.append(row);
    }
    select(matches);
    _panel.setText(panelcontrol::found,
                   matches.size() == 1
                       ? strings().text({"Carnet", "One dive found"})
                       : strings().text(Message<int>{"Carnet", "Found dives"}, int(matches.size())));
}

}  // namespace sargan
