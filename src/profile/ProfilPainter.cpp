#include "profile/ProfilPainter.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPaintEngine>
#include <QPainter>
#include <cmath>

#include "platform/form/SystemColors.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal labelSize = 11;
constexpr qreal minimumTickDistance = 3;

QFont labelFont() {
    QFont font;
    font.setFamilies({u"Lucida Grande"_s, u"DejaVu Sans"_s});
    font.setPixelSize(int(labelSize));
    return font;
}

QColor withValue(const QColor& color, float saturation, float value) {
    return QColor::fromHsvF(std::max(0.0F, color.hsvHueF()), color.hsvSaturationF() * saturation, value);
}

}  // namespace

ProfilPainter::ProfilPainter(const Profil& profil, QPainter& painter, QSizeF size, const Strings& strings)
    : _profil(profil),
      _style(profil.style),
      _painter(painter),
      _size(size),
      _strings(strings),
      _geometry(size, profil.profilData),
      _font(labelFont()),
      _isRaster(painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster) {}

void ProfilPainter::draw() {
    const QRectF bounds(QPointF(), _size);
    _painter.setRenderHint(QPainter::Antialiasing);
    _painter.fillRect(bounds, Qt::white);
    _painter.fillRect(bounds, _style.backgroundColor);
    if (_style.gradient) drawProfileBackGround();
    drawAxes();
    buildProfile();

    const QPointF corner = at(ProfilGeometry::left, _geometry.surface());
    const QRectF frame(corner, at(_geometry.right(), ProfilGeometry::gasBottom));
    if (_style.fillPlot && !_profile.line.isEmpty()) {
        QPolygonF area = _profile.line;
        area.prepend(corner);
        area.append({_profile.line.last().x(), corner.y()});
        _painter.setPen(Qt::NoPen);
        _painter.setBrush(_style.fillColor);
        _painter.drawPolygon(area);
    }
    _painter.setBrush(Qt::NoBrush);
    strokeLines({{frame.topLeft(), frame.topRight()},
                 {frame.topRight(), frame.bottomRight()},
                 {frame.bottomRight(), frame.bottomLeft()},
                 {frame.bottomLeft(), frame.topLeft()}},
                systemcolor::black);

    strokeLines(_dashes, QPen(_style.linesColor, 1, Qt::DashLine));
    strokeLines(_ticks, QPen(_style.linesColor, 0.5));
    stroke(_profile, _style.plotColor);
    strokeLines(_ppO2Lines, QPen(blue(), 1, Qt::DashLine));

    drawFlags();
    strokeLines({{corner, at(_geometry.right(), _geometry.surface())}}, systemcolor::green);
    if (_style.shadow) {
        _painter.setPen(QPen(QColor(0, 0, 0, 85), 1.5));
        _painter.drawPolyline(_gas.line.translated(5, 5));
    }
    stroke(_gas, blue());
    strokeLines(_surfaceFlags, systemcolor::red);
}

void ProfilPainter::drawProfileBackGround() {
    // Water: it gets darker with depth. Whether it begins light or dark is for the lines to stand out.
    QLinearGradient water(0, 0, 0, _size.height());
    const QColor& color = _style.backgroundColor;
    water.setColorAt(0, isDark() ? withValue(color, 0.8F, 0.38F) : withValue(color, 0.1F, 1.0F));
    water.setColorAt(1, isDark() ? withValue(color, 1.0F, 0.1F) : withValue(color, 0.5F, 0.85F));
    _painter.fillRect(QRectF(QPointF(), _size), water);
}

bool ProfilPainter::isDark() const {
    return _style.gradient && qGray(_style.linesColor.rgb()) > 127;
}

QColor ProfilPainter::inkColor() const {
    return _style.gradient ? _style.linesColor : systemcolor::black;
}

QColor ProfilPainter::blue() const {
    return isDark() ? QColor(115, 160, 255) : systemcolor::blue;
}

// --- Axes ---

void ProfilPainter::drawAxes() {
    const qreal top = _geometry.surface();
    const qreal left = ProfilGeometry::left;
    _painter.setFont(_font);
    strokeLines({{at(left, ProfilGeometry::gasBottom), at(left, top)},
                 {at(left, top), at(_geometry.right(), top)},
                 {at(left, ProfilGeometry::gasBottom), at(_geometry.right(), ProfilGeometry::gasBottom)}},
                inkColor());
    label(8, top + 16, _strings.text({"Profil", "Depth m"}));
    label(_geometry.right(), top + 16, _strings.text({"Profil", "Time min"}), Qt::AlignRight);
    depthAxis();
    timeAxis(top, top + 1);
    timeAxis(ProfilGeometry::gasBottom, 4);
    pressureScale();
}

qreal ProfilPainter::stride(qreal spacing, qreal needed) {
    // 1, 2, 4, 10, 20, 40, 100 …: with labels every 5, the labels stay round.
    qreal stride = 1;
    for (int step = 0; spacing * stride < needed && step < 1000; ++step) stride *= step % 3 == 2 ? 2.5 : 2;
    return stride;
}

void ProfilPainter::depthAxis() {
    const qreal left = ProfilGeometry::left;
    const qreal spacing = _geometry.surface() - _geometry.y(5);
    if (!(spacing > 0)) return;
    const qreal step = 5 * stride(spacing, labelSize + 2);
    for (qreal depth = 0; depth <= _geometry.greatestDepth(); depth += step) {
        const qreal y = _geometry.y(depth);
        tick(left, y, left + 8, y);
        label(8, y - 8, QString::number(depth, 'f', 0));
        const bool isHigh = _geometry.surface() - y < 50;
        if (_style.dashedLines && depth > 0)
            _dashes.append({at(left, y), at(isHigh ? _geometry.width() - 70 : _geometry.right(), y)});
    }
    if (_style.yMinorTicks && spacing / 5 >= minimumTickDistance)
        for (qreal depth = 1; depth <= _geometry.greatestDepth(); ++depth)
            tick(left, _geometry.y(depth), left + 5, _geometry.y(depth));
}

void ProfilPainter::timeAxis(qreal y, qreal labelBase) {
    const qreal left = ProfilGeometry::left;
    const qreal spacing = _geometry.timeSpacing(_profil.samplingRate);
    if (!(spacing > 0)) return;
    const qreal step = stride(spacing, 3 * labelSize);
    const qreal places = (_geometry.right() - left) / spacing;
    for (qreal place = 0; place <= places; place += step) {
        const qreal x = left + place * spacing;
        tick(x, y, x, y - (labelBase > y ? 8 : -8));
        label(x, labelBase, QString::number(place * ProfilGeometry::axisMinutes, 'f', 0), Qt::AlignHCenter);
    }
    if (!_style.xMinorTicks || spacing / 5 < minimumTickDistance) return;
    for (int minor = 1; minor <= places * 5; ++minor)
        tick(left + minor * spacing / 5, y, left + minor * spacing / 5, y - (labelBase > y ? 5 : -5));
}

void ProfilPainter::pressureScale() {
    label(ProfilGeometry::left, 85, _strings.text({"Profil", "Gas bar"}));
    const int start = _profil.pressDepart;
    if (start <= 0) return;
    const qreal spacing = (ProfilGeometry::gasTop - ProfilGeometry::gasBottom) * 25 / start;
    const qreal step = 25 * stride(spacing, labelSize + 2);
    for (qreal pressure = step; pressure <= start; pressure += step) {
        const qreal y = _geometry.gasY(pressure, start);
        tick(ProfilGeometry::left, y, ProfilGeometry::left + 10, y);
        label(ProfilGeometry::left + 12, y - 7, u"%1"_s.arg(int(pressure), 3));
    }
}

void ProfilPainter::tick(qreal x1, qreal y1, qreal x2, qreal y2) {
    _ticks.append({at(x1, y1), at(x2, y2)});
}

void ProfilPainter::label(qreal x, qreal y, const QString& text, Qt::Alignment alignment) {
    const QFontMetricsF metrics(_font);
    const qreal width = metrics.horizontalAdvance(text);
    if (alignment & Qt::AlignRight) x -= width;
    if (alignment & Qt::AlignHCenter) x -= width / 2;
    _painter.setPen(inkColor());
    _painter.drawText(at(x, y + metrics.descent()), text);
}

void ProfilPainter::strokeLines(const QList<QLineF>& lines, const QPen& pen) {
    if (lines.isEmpty()) return;
    // Upright and level lines are sharpest without smoothing.
    _painter.setRenderHint(QPainter::Antialiasing, false);
    _painter.setPen(pen);
    _painter.drawLines(lines);
    _painter.setRenderHint(QPainter::Antialiasing);
}

// --- The graph ---

void Profil::draw(QPainter& painter, QSizeF size, const Strings& strings) const {
    if (size.width() < 1 || size.height() < 1) return;
    painter.save();
    ProfilPainter(*this, painter, size, strings).draw();
    painter.restore();
}

}  // namespace sargan
