#pragma once

#include <QStyledItemDelegate>

namespace sargan {

/// Draws the cells of lists: background and selection, a bar behind the text where a cell has a gauge, and
/// one line of text kept apart from its neighbours.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr int textMargin = 7;  ///< left and right of a cell's words

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace sargan
