#include "platform/print/TablePages.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <memory>

#include "platform/print/StyledText.h"
#include "platform/print/TextPages.h"

namespace sargan {

namespace {

constexpr qreal fontSize = 11;
constexpr qreal padding = 4;
constexpr qreal narrowest = 24;
constexpr QColor headerColor{225, 230, 235};
constexpr QColor lineColor{190, 190, 190};
constexpr QColor gaugeColor{150, 190, 230};

qreal sumOf(const std::vector<qreal>& widths) {
    qreal sum = 0;
    for (const qreal width : widths) sum += width;
    return sum;
}

/// Widths that fit on the page: columns that are wider than an even share of what is left are cut to it.
std::vector<qreal> fitted(std::vector<qreal> widths, qreal room) {
    if (sumOf(widths) <= room) return widths;
    std::vector<bool> isKept(widths.size(), false);
    for (bool changed = true; changed;) {
        changed = false;
        qreal left = room;
        int open = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (isKept[i])
                left -= widths[i];
            else
                ++open;
        }
        if (open == 0) break;
        const qreal share = std::max(left / open, narrowest);
        for (std::size_t i = 0; i < widths.size(); ++i)
            if (!isKept[i] && widths[i] <= share) isKept[i] = changed = true;
        if (!changed)
            for (std::size_t i = 0; i < widths.size(); ++i)
                if (!isKept[i]) widths[i] = share;
    }
    return widths;
}

/// Breaks the text into lines of this width; answers their height.
qreal layOut(QTextLayout& layout, qreal width, Qt::Alignment alignment) {
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.setText(layout.text().replace(u'\n', QChar::LineSeparator));
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return std::ceil(height);
}

/// One layout of a table: column widths, row heights, and which rows stand on which page.
class TableSetting {
public:
    TableSetting(const TableSource& table, const Strings& strings, const QString& title, QSizeF area)
        : _table(table), _columns(table.tableColumns()), _title(title), _area(area) {
        for (const TableColumn& column : _columns) _titles << strings.text(column.title);
        measureColumns();
        measureRows();
    }

    int pageCount() const { return int(_firstRows.size()); }

    void draw(QPainter& painter, int page) const {
        qreal top = drawHeader(painter);
        const qsizetype end =
            page + 1 < pageCount() ? _firstRows[std::size_t(page) + 1] : qsizetype(_heights.size());
        for (qsizetype row = _firstRows[std::size_t(page)]; row < end; ++row)
            top = drawRow(painter, row, top);
        drawFooter(painter, _area, _title, page, pageCount());
    }

private:
    const QFontMetricsF& metrics(bool bold) const { return bold ? _bold : _plain; }
    qreal widthOf(const QString& text, bool bold) const {
        qreal widest = 0;
        for (const QStringView line : QStringView(text).split(u'\n'))
            widest = std::max(widest, metrics(bold).horizontalAdvance(line.toString()));
        return std::ceil(widest) + 2 * padding + 1;
    }

    void measureColumns() {
        std::vector<qreal> widths;
        for (const QString& title : _titles) widths.push_back(widthOf(title, true));
        for (qsizetype row = 0; row < _table.tableRows(); ++row)
            for (int i = 0; i < int(_columns.size()); ++i) {
                const TableCell cell = _table.tableCell(row, i);
                qreal& width = widths[std::size_t(i)];
                width = std::max(width, widthOf(cell.text, cell.bold));
            }
        _widths = fitted(std::move(widths), _area.width());
    }

    qreal heightOf(const QString& text, bool bold, std::size_t column) const {
        const qreal line = metrics(bold).lineSpacing() + 2 * padding;
        const bool isOneLine = !text.contains(u'\n') && widthOf(text, bold) <= _widths[column];
        if (isOneLine) return line;
        return std::max(line, wrappedHeight(text, bold, _widths[column] - 2 * padding) + 2 * padding);
    }

    qreal wrappedHeight(const QString& text, bool bold, qreal width) const {
        QTextLayout layout(text, bold ? _boldFont : _plainFont);
        return layOut(layout, width, Qt::AlignLeft);
    }

    void measureRows() {
        for (std::size_t i = 0; i < _widths.size(); ++i)
            _headerHeight = std::max(_headerHeight, heightOf(_titles[qsizetype(i)], true, i));
        const qreal room = _area.height() - footerHeight - _headerHeight;
        qreal used = 0;
        _firstRows.push_back(0);
        for (qsizetype row = 0; row < _table.tableRows(); ++row) {
            qreal height = 0;
            for (int i = 0; i < int(_columns.size()); ++i) {
                const TableCell cell = _table.tableCell(row, i);
                height = std::max(height, heightOf(cell.text, cell.bold, std::size_t(i)));
            }
            height = std::min(height, room);
            if (used > 0 && used + height > room) {
                _firstRows.push_back(row);
                used = 0;
            }
            used += height;
            _heights.push_back(float(height));
        }
    }

    qreal drawHeader(QPainter& painter) const {
        qreal left = 0;
        for (int i = 0; i < int(_columns.size()); ++i) {
            const QRectF box(left, 0, _widths[std::size_t(i)], _headerHeight);
            TableCell cell{_titles[i]};
            cell.bold = true;
            cell.background = headerColor;
            drawCell(painter, box, cell, _columns[i].alignment);
            left = box.right();
        }
        return _headerHeight;
    }

    qreal drawRow(QPainter& painter, qsizetype row, qreal top) const {
        const qreal height = qreal(_heights[std::size_t(row)]);
        qreal left = 0;
        for (int i = 0; i < int(_columns.size()); ++i) {
            const QRectF box(left, top, _widths[std::size_t(i)], height);
            drawCell(painter, box, _table.tableCell(row, i), _columns[i].alignment);
            left = box.right();
        }
        return top + height;
    }

    void drawCell(QPainter& painter, const QRectF& box, const TableCell& cell,
                  Qt::Alignment alignment) const {
        if (cell.background.isValid()) painter.fillRect(box, cell.background);
        if (cell.gauge) {
            QRectF bar = box.adjusted(1, 1, -1, -1);
            bar.setWidth(bar.width() * std::clamp(*cell.gauge, 0.0, 1.0));
            painter.fillRect(bar, gaugeColor);
        }
        painter.setPen(QPen(lineColor, 0.5));
        painter.drawRect(box);
        painter.setPen(cell.color.isValid() ? cell.color : inkcolor::black);
        const QRectF inner = box.adjusted(padding, padding, -padding, -padding);
        QTextLayout layout(cell.text, cell.bold ? _boldFont : _plainFont);
        const qreal height = layOut(layout, inner.width(), alignment);
        const bool isCut = height > inner.height() + 1;
        if (isCut) painter.setClipRect(box);
        const bool isCentred = alignment.testFlag(Qt::AlignVCenter) && !isCut;
        layout.draw(&painter, inner.topLeft() + QPointF(0, isCentred ? (inner.height() - height) / 2 : 0));
        if (isCut) painter.setClipping(false);
    }

    const TableSource& _table;
    QList<TableColumn> _columns;
    QStringList _titles;
    QString _title;
    QSizeF _area;
    QFont _plainFont = printFont(fontSize);
    QFont _boldFont = printFont(fontSize, true);
    QFontMetricsF _plain{_plainFont};
    QFontMetricsF _bold{_boldFont};
    std::vector<qreal> _widths;
    std::vector<float> _heights;
    std::vector<qsizetype> _firstRows;
    qreal _headerHeight = 0;
};

}  // namespace

Pages TablePages::pages(QSizeF area) const {
    const auto setting = std::make_shared<TableSetting>(_table, _strings, _title, area);
    return {setting->pageCount(), [setting](QPainter& painter, int page) { setting->draw(painter, page); }};
}

}  // namespace sargan
