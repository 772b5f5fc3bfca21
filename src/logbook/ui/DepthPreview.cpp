#include "logbook/ui/DepthPreview.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "profile/ProfileData.h"

namespace sargan {

DepthPreview::DepthPreview(QWidget* parent) : QWidget(parent) {
    setMinimumHeight(60);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void DepthPreview::setDepths(const NumberArray& depths) {
    _depths = depths;
    const auto deepest = double(profile::greatest(depths));
    _deepest = std::isfinite(deepest) && deepest > 1 ? deepest : 1;
    update();
}

void DepthPreview::setMarked(qsizetype sample) {
    if (sample == _marked) return;
    _marked = sample;
    update();
}

QPointF DepthPreview::place(qsizetype sample) const {
    const QRectF area = QRectF(rect()).adjusted(8, 8, -8, -8);
    const double depth = std::clamp(_depths.at(sample), 0.0, _deepest);
    const double share = double(sample) / double(std::max<qsizetype>(1, _depths.size() - 1));
    return {area.left() + share * area.width(),
            area.top() + (std::isfinite(depth) ? depth : 0) / _deepest * area.height()};
}

void DepthPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().base());
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!profile::isPresent(_depths)) return;
    // More samples than points across show nothing more.
    const qsizetype step = std::max<qsizetype>(1, _depths.size() / (4 * std::max(1, width())));
    QPolygonF line;
    for (qsizetype i = 0; i < _depths.size(); i += step) line << place(i);
    QPolygonF filled = line;
    filled << QPointF(line.last().x(), 8) << QPointF(line.first().x(), 8);
    QColor water = palette().color(QPalette::Highlight);
    painter.setPen(Qt::NoPen);
    QColor faint = water;
    faint.setAlpha(50);
    painter.setBrush(faint);
    painter.drawPolygon(filled);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(water, 1.6));
    painter.drawPolyline(line);
    if (_marked < 0 || _marked >= _depths.size()) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().text());
    painter.drawEllipse(place(_marked), 4, 4);
}

}  // namespace sargan
