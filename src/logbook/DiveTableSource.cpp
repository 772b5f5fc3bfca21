#include "logbook/DiveTableSource.h"

#include <QScopedValueRollback>

#include "logbook/Carnet.h"
#include "logbook/DiveColumns.h"
#include "platform/record/SortedOrder.h"

namespace sargan {

DiveTableSource::DiveTableSource(Carnet& carnet) : _carnet(carnet) {
    for (const DiveColumn& column : diveColumns()) _shown << QLatin1String(column.identifier);
    displayColumnsInTableView();
}

void DiveTableSource::displayColumnsInTableView() {
    const UserDefaults& defaults = _carnet.desk().defaults;
    for (const DiveColumn& column : diveColumns()) {
        const QString key = QLatin1String(column.visibilityKey);
        setColumn(QLatin1String(column.identifier),
                  defaults.contains(key) ? defaults.boolean(key) : column.isDesigned);
    }
}

void DiveTableSource::setColumn(const QString& identifier, bool visible) {
    if (_cols.isEmpty()) _cols = _shown;
    if (!visible) {
        _shown.removeOne(identifier);
        return;
    }
    const qsizetype designed = _cols.lastIndexOf(identifier);
    if (designed < 0 || _shown.contains(identifier)) return;
    _shown.insert(std::min(designed, _shown.size()), identifier);
}

void DiveTableSource::didClickTableColumn(const QString& identifier) {
    diveColumn(identifier);
    if (_carnet.isReadOnly()) return;
    bool ascending = _ascendingDirection.value(identifier);
    if (identifier == _idColonne) {
        ascending = !ascending;
        _ascendingDirection.insert(identifier, ascending);
    }
    _idColonne = identifier;
    sortBy(identifier, ascending);
}

void DiveTableSource::sortBy(const QString& identifier, bool ascending) {
    _carnet.storeForm();
    const QScopedValueRollback sorting(_sorting, true);
    const FieldList<Plongee> fields = PlongeeFields::all;
    const Field<Plongee>& field = *fields[std::size_t(fieldIndex(fields, identifier))];
    const Records<Plongee>& before = _carnet.records();
    const std::vector<qsizetype> order = sortedOrder(before, field, ascending);
    if (!std::is_sorted(order.begin(), order.end())) {
        Records<Plongee> dives;
        dives.reserve(before.size());
        Selection selected;
        for (const qsizetype row : order) {
            const Selection& rows = _carnet.selection();
            if (std::binary_search(rows.begin(), rows.end(), row)) selected.append(dives.size());
            dives.append(before[row]);
        }
        _carnet.perform(QStringLiteral("Sort dives"), std::move(dives), std::move(selected));
    }
    _sortedState = _carnet.listState();
}

QString DiveTableSource::sortedColumn() const {
    return _sorting || _carnet.listState() == _sortedState ? _idColonne : QString();
}

QList<TableColumn> DiveTableSource::tableColumns() const {
    QList<TableColumn> columns;
    for (const QString& identifier : _shown) {
        const DiveColumn& column = diveColumn(identifier);
        columns.append({identifier, column.title, column.characters, column.alignment});
    }
    return columns;
}

qsizetype DiveTableSource::tableRows() const {
    return _carnet.count();
}

TableCell DiveTableSource::tableCell(qsizetype row, int column) const {
    return diveCell(_carnet.record(row), diveColumn(_shown[column]), settings(), _carnet.strings());
}

QString DiveTableSource::tableCount() const {
    if (_carnet.count() == 1) return _carnet.strings().ui("1 dive");
    return _carnet.strings().text(Message<int>{"Interface", "%d dives", "%d dives"}, int(_carnet.count()));
}

const DiveTableSettings& DiveTableSource::settings() const {
    const UserDefaults& defaults = _carnet.desk().defaults;
    if (_settingsVersion != defaults.version()) {
        _settings = DiveTableSettings::of(defaults);
        _settingsVersion = defaults.version();
    }
    return _settings;
}

}  // namespace sargan
