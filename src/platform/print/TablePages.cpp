#include "platform/print/TablePages.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <memory>

#include "platform/document/CellInk.h"
#include "platform/document/ColumnOrder.h"
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

/// Widths that fit on the page: wide columns are cut to one width, but none below its longest word as long as
/// all words have room.
std::vector<qreal> fitted(const std::vector<qreal>& widths, std::vector<qreal> words, qreal room) {
    if (sumOf(words) > room) words.assign(widths.size(), narrowest);
    const auto cutTo = [&](qreal most) {
        std::vector<qreal> cut = widths;
        for (std::size_t i = 0; i < cut.size(); ++i)
            cut[i] = std::max(std::min(cut[i], most), std::min(cut[i], words[i]));
        return cut;
    };
    qreal fits = 0, tooWide = room;
    while (tooWide - fits > 0.25) {
        const qreal middle = (fits + tooWide) / 2;
        (sumOf(cutTo(middle)) <= room ? fits : tooWide) = middle;
    }
    return cutTo(fits);
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
    TableSetting(const TableSource& table, const Strings& strings, const QString& title,
                 const QStringList& order, QSizeF area)
        : _table(table), _title(title), _area(area) {
        const QList<TableColumn> columns = table.tableColumns();
        _places = placesInOrder(columns, order);
        for (const int place : std::as_const(_places)) {
            _columns << columns[place];
            _titles << strings.text(columns[place].title);
        }
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
    TableCell cell(qsizetype row, int column) const { return _table.tableCell(row, _places[column]); }
    const QFontMetricsF& metrics(bool bold) const { return bold ? _bold : _plain; }
    qreal widthOf(const QString& text, bool bold) const {
        qreal widest = 0;
        for (const QStringView line : QStringView(text).split(u'\n'))
            widest = std::max(widest, metrics(bold).horizontalAdvance(line.toString()));
        return std::ceil(widest) + 2 * padding + 1;
    }
    /// Of its longest word.
    qreal wordWidthOf(QString text, bool bold) const { return widthOf(text.replace(u' ', u'\n'), bold); }

    void measureColumns() {
        _widths = widest([this](const QString& text, bool bold) { return widthOf(text, bold); });
        if (sumOf(_widths) <= _area.width()) return;
        const auto words = widest([this](const QString& text, bool bold) { return wordWidthOf(text, bold); });
        _widths = fitted(_widths, words, _area.width());
    }

    /// The greatest width of each column's title and texts.
    template <class Width>
    std::vector<qreal> widest(Width width) const {
        std::vector<qreal> widths;
        for (const QString& title : _titles) widths.push_back(width(title, true));
        for (qsizetype row = 0; row < _table.tableRows(); ++row)
            for (int i = 0; i < int(_columns.size()); ++i) {
                const TableCell shown = cell(row, i);
                qreal& found = widths[std::size_t(i)];
                found = std::max(found, width(shown.text, shown.bold));
            }
        return widths;
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
                const TableCell shown = cell(row, i);
                height = std::max(height, heightOf(shown.text, shown.bold, std::size_t(i)));
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
            TableCell title{_titles[i]};
            title.bold = true;
            title.background = headerColor;
            drawCell(painter, box, title, _columns[i].alignment);
            left = box.right();
        }
        return _headerHeight;
    }

    qreal drawRow(QPainter& painter, qsizetype row, qreal top) const {
        const qreal height = qreal(_heights[std::size_t(row)]);
        qreal left = 0;
        for (int i = 0; i < int(_columns.size()); ++i) {
            const QRectF box(left, top, _widths[std::size_t(i)], height);
            drawCell(painter, box, cell(row, i), _columns[i].alignment);
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
        const QColor ink = inkOf(cell);
        painter.setPen(ink.isValid() ? ink : inkcolor::black);
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
    QList<int> _places;           ///< of the columns in the source, from left to right
    QList<TableColumn> _columns;  ///< from left to right
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
    const auto setting = std::make_shared<TableSetting>(_table, _strings, _title, _columnOrder, area);
    return {setting->pageCount(), [setting](QPainter& painter, int page) { setting->draw(painter, page); }};
}

}  // namespace sargan
