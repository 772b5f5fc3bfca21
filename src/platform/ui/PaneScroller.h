#pragma once

#include <QScrollArea>

class QBoxLayout;
class QLayoutItem;

namespace sargan {

/// The scroll area around a pane. Columns of sections stand side by side while they fit, and below each
/// other in a window that is too narrow for them.
class PaneScroller : public QScrollArea {
    Q_OBJECT

public:
    PaneScroller(QWidget* content, QBoxLayout* columns);
    /// What the pane takes with its columns side by side.
    QSize sizeSideBySide() const;
    /// The least with which nothing of that is cut off.
    QSize leastSideBySide() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize sideBySide(QSize (QLayoutItem::*sizeOf)() const) const;

    QBoxLayout* _columns;
};

}  // namespace sargan
