#include "platform/document/CellInk.h"

namespace sargan {

namespace {

/// Whether white text is easier to read on this colour than black text.
bool isDark(const QColor& color) {
    return 0.299 * color.redF() + 0.587 * color.greenF() + 0.114 * color.blueF() < 0.5;
}

}  // namespace

QColor inkOf(const TableCell& cell) {
    const bool isUsual = !cell.color.isValid() || cell.color == QColor(Qt::black);
    if (!isUsual) return cell.color;
    if (!cell.background.isValid() || cell.background.alphaF() < 0.5F) return {};
    return isDark(cell.background) ? Qt::white : Qt::black;
}

}  // namespace sargan
