#pragma once

#include <QHash>
#include <QStringList>

#include "logbook/DiveTableSettings.h"
#include "platform/document/TableSource.h"

namespace sargan {

class Carnet;

/// The logbook's list as a table: which columns stand in it, what its cells show, what a click on a header
/// does. Every logbook has one of its own.
class DiveTableSource : public TableSource {
public:
    explicit DiveTableSource(Carnet& carnet);

    // --- Columns ---

    /// The shown columns' identifiers, in order. At first these are all, as designed.
    const QStringList& shownColumns() const { return _shown; }
    /// Shows and hides every column as the settings say.
    void displayColumnsInTableView();
    /// Hides a column, or shows it again: at its designed place, or at the end when fewer columns than that
    /// are shown. An identifier that the table never had does nothing.
    void setColumn(const QString& identifier, bool visible);

    // --- Sorting ---

    /// Sorts the logbook by this column: descending first; a click on the column clicked last turns the
    /// direction round, and every column remembers its own. Throws UnknownKeyError.
    void didClickTableColumn(const QString& identifier);

    QList<TableColumn> tableColumns() const override;
    qsizetype tableRows() const override;
    TableCell tableCell(qsizetype row, int column) const override;
    void clickTableColumn(const QString& identifier) override { didClickTableColumn(identifier); }
    /// None once the list is no longer as the last click left it.
    QString sortedColumn() const override;
    bool isSortAscending() const override { return _ascendingDirection.value(_idColonne); }
    QString tableCount() const override;

private:
    const DiveTableSettings& settings() const;
    void sortBy(const QString& identifier, bool ascending);

    Carnet& _carnet;
    QStringList _shown;
    QStringList _cols;  ///< all columns as they stood before the first one was shown or hidden
    QHash<QString, bool> _ascendingDirection;
    QString _idColonne;        ///< clicked last
    quint64 _sortedState = 0;  ///< of the list, when the last click had sorted it
    bool _sorting = false;
    mutable DiveTableSettings _settings;
    mutable quint64 _settingsVersion = 0;
};

}  // namespace sargan
