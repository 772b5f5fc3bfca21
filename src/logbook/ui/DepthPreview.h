#pragma once

#include <QWidget>

#include "platform/archive/NumberArray.h"

namespace sargan {

/// A small curve of a list of depths, the surface at the top, with one sample marked.
class DepthPreview : public QWidget {
    Q_OBJECT

public:
    explicit DepthPreview(QWidget* parent = nullptr);

    void setDepths(const NumberArray& depths);
    const NumberArray& depths() const { return _depths; }
    /// -1 for none.
    void setMarked(qsizetype sample);
    QSize sizeHint() const override { return {400, 130}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPointF place(qsizetype sample) const;

    NumberArray _depths;
    double _deepest = 1;
    qsizetype _marked = -1;
};

}  // namespace sargan
