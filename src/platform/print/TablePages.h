#pragma once

#include <QStringList>

#include "platform/document/TableSource.h"
#include "platform/print/Printable.h"
#include "platform/text/Strings.h"

namespace sargan {

/// A document's list on landscape pages: the cells as they are displayed, colours and gauges included, the
/// header on every page, title and page number below. Cells too wide for the page are wrapped, never cut.
class TablePages : public Printable {
public:
    /// Table and strings must outlive what is printed with them.
    /// `columnOrder`: identifiers from left to right, as the list's window shows them.
    TablePages(const TableSource& table, const Strings& strings, QString title, QStringList columnOrder = {})
        : _table(table), _strings(strings), _title(std::move(title)), _columnOrder(std::move(columnOrder)) {}

    QString title() const override { return _title; }
    QPageLayout::Orientation orientation() const override { return QPageLayout::Landscape; }
    Pages pages(QSizeF area) const override;

private:
    const TableSource& _table;
    const Strings& _strings;
    QString _title;
    QStringList _columnOrder;
};

}  // namespace sargan
