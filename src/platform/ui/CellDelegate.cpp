#include "platform/ui/CellDelegate.h"

#include <QApplication>
#include <QPainter>
#include <cmath>

#include "platform/ui/LegibleColor.h"
#include "platform/ui/SourceTable.h"

namespace sargan {

namespace {

void drawGauge(QPainter* painter, const QRect& cell, double value, const QPalette& palette) {
    const QRectF track = QRectF(cell).adjusted(3, 3, -3, -3);
    const double share = std::isnan(value) ? 0 : std::clamp(value, 0.0, 1.0);
    QColor color = palette.color(QPalette::Highlight);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    color.setAlphaF(0.12F);
    painter->setBrush(color);
    painter->drawRoundedRect(track, 3, 3);
    color.setAlphaF(0.45F);
    painter->setBrush(color);
    painter->setClipRect(QRectF(track.topLeft(), QSizeF(track.width() * share, track.height())));
    painter->drawRoundedRect(track, 3, 3);
    painter->restore();
}

}  // namespace

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    const bool isSelected = cell.state & QStyle::State_Selected;
    const QVariant gauge = index.data(SourceTable::GaugeRole);
    if (gauge.isValid() && !isSelected) drawGauge(painter, cell.rect, gauge.toDouble(), cell.palette);
    const QRect place = cell.rect.adjusted(textMargin, 0, -textMargin, 0);
    const bool isActive = cell.state & QStyle::State_Active;
    cell.palette.setCurrentColorGroup(isActive ? QPalette::Active : QPalette::Inactive);
    if (cell.backgroundBrush.style() == Qt::NoBrush)
        cell.palette.setColor(QPalette::Text, legibleOn(cell.palette.color(QPalette::Base),
                                                        cell.palette.color(QPalette::Text)));
    painter->setFont(cell.font);
    // A line break within a text would push what stands before it out of the cell.
    const QString line = cell.fontMetrics.elidedText(
        cell.text.replace(QChar::LineSeparator, u' ').replace(u'\n', u' '), Qt::ElideRight, place.width());
    style->drawItemText(painter, place, int(cell.displayAlignment) | Qt::TextSingleLine, cell.palette,
                        cell.state & QStyle::State_Enabled, line,
                        isSelected ? QPalette::HighlightedText : QPalette::Text);
}

}  // namespace sargan
