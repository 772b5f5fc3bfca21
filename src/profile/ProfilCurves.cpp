#include <QPainter>
#include <cmath>

#include "platform/form/SystemColors.h"
#include "profile/ProfilPainter.h"

namespace sargan {

namespace {

constexpr qreal markerSize = 7;

/// Gathers samples of which several fall into one column of pixels. Each column becomes one bar from its
/// highest to its lowest point, joined to the column before: the picture of the whole line at the cost of
/// the columns, however many samples there are.
class PixelColumns {
public:
    PixelColumns(ProfilCurve& into, qreal pixelsPerPoint) : _into(into), _scale(pixelsPerPoint) {}

    void add(QPointF point) {
        const qreal column = std::floor(point.x() * _scale);
        if (_isOpen && column != _column) {
            flush();
            bridge(column, point.y());
        }
        if (!_isOpen) {
            _low = _high = _isJoined ? _lastY : point.y();
            _deepest = point.y();
        }
        _isOpen = true;
        _column = column;
        _low = std::min(_low, point.y());
        _high = std::max(_high, point.y());
        _deepest = std::max(_deepest, point.y());
        _lastY = point.y();
    }
    void flush() {
        if (!_isOpen) return;
        const qreal half = 0.5 / _scale;
        _into.bars.append(QRectF(_column / _scale, _low - half, 2 * half, _high - _low + 2 * half));
        _into.line.append({_column / _scale + half, _deepest});
        _isOpen = false;
        _isJoined = true;
    }

private:
    /// Bars over the columns that have no sample, up to the next one that has.
    void bridge(qreal column, qreal y) {
        const qreal from = _column;
        const qreal step = (y - _lastY) / (column - from);
        for (qreal passed = from + 1; passed < column; ++passed) {
            _column = passed;
            _low = _high = _lastY;
            _lastY += step;
            _low = std::min(_low, _lastY);
            _high = _deepest = std::max(_high, _lastY);
            _isOpen = true;
            flush();
        }
    }

    ProfilCurve& _into;
    qreal _scale;
    qreal _column = 0;
    bool _isOpen = false;
    bool _isJoined = false;
    qreal _low = 0, _high = 0, _deepest = 0, _lastY = 0;
};

QPolygonF triangle(QPointF place, qreal up) {
    const qreal half = markerSize / 2;
    return QPolygonF{{place.x() - half, place.y() + up * half},
                     {place.x() + half, place.y() + up * half},
                     {place.x(), place.y() - up * half}};
}

}  // namespace

template <class Value>
ProfilCurve ProfilPainter::curve(qsizetype count, Value&& value) const {
    ProfilCurve curve;
    const qreal scale = _painter.deviceTransform().m11();
    const bool isDense = _isRaster && count > _size.width() * scale;
    PixelColumns columns(curve, scale);
    for (qsizetype i = 0; i < count; ++i) {
        const std::optional<qreal> y = value(i);
        if (!y || !std::isfinite(*y)) continue;
        const QPointF point = at(_geometry.x(i), *y);
        isDense ? columns.add(point) : curve.line.append(point);
    }
    columns.flush();
    return curve;
}

void ProfilPainter::stroke(const ProfilCurve& curve, const QColor& color) {
    if (curve.bars.isEmpty()) {
        _painter.setBrush(Qt::NoBrush);
        _painter.setPen(QPen(color, 1));
        _painter.drawPolyline(curve.line);
    } else {
        _painter.setPen(Qt::NoPen);
        _painter.setBrush(color);
        _painter.drawRects(curve.bars);
        _painter.setBrush(Qt::NoBrush);
    }
}

QPointF ProfilPainter::samplePlace(qsizetype sample) const {
    return at(_geometry.x(sample), _geometry.y(_profil.profilData.at(sample)));
}

void ProfilPainter::buildProfile() {
    _profile = curve(_geometry.samples(), [this](qsizetype i) -> std::optional<qreal> {
        return _geometry.y(_profil.profilData.at(i));
    });
    if (_style.ppO2Line) addPpO2Line();
    addGas();
    addSurfaceFlags();
}

void ProfilPainter::addPpO2Line() {
    const qreal depth = _profil.ppO2Depth();
    if (!(depth >= 0 && depth < _geometry.greatestDepth())) return;
    const qreal y = _geometry.y(depth);
    _ppO2Lines.append({at(ProfilGeometry::left, y), at(_geometry.right(), y)});
    // Near the surface the labels of the time axis need the right end.
    const bool hasRoom = _geometry.surface() - y > 50;
    const qreal end = hasRoom ? _geometry.right() - 4 : _geometry.width() - 70;
    label(end, y + 2, _strings.text({"Profil", "PpO2"}), Qt::AlignRight);
}

void ProfilPainter::addGas() {
    const NumberArray& pressures = _profil.pressData;
    const qsizetype count = std::min(_geometry.samples(), pressures.size());
    _gas = curve(count, [&](qsizetype i) -> std::optional<qreal> {
        const double pressure = pressures.at(i);
        if (!(pressure > 0)) return std::nullopt;
        return _geometry.gasY(pressure, _profil.pressDepart);
    });
    if (!_gas.line.isEmpty()) _gas.line.prepend(at(ProfilGeometry::left, ProfilGeometry::gasTop));
}

void ProfilPainter::addSurfaceFlags() {
    const qsizetype count = std::min(_geometry.samples(), _profil.surfaceFlag.size());
    for (qsizetype i = 0; i < count; ++i) {
        if (_profil.surfaceFlag.intAt(i) != 1) continue;
        const qreal x = _geometry.x(i);
        // Two strokes on one pixel look like one.
        if (_isRaster && !_surfaceFlags.isEmpty() && x - _surfaceFlags.last().x1() < 1) continue;
        _surfaceFlags.append({at(x, _geometry.surface() - 6), at(x, _geometry.surface() + 6)});
    }
}

// --- Markers ---

void ProfilPainter::drawFlags() {
    if (_style.alarmeASC) markStops();
    if (_style.alarmeSLOW) markAscents();
    if (_style.alarmeCEIL) markCeilings();
    if (_style.alarmeGAZ || _style.alarmeGAZO2) markGases();
}

template <class Draw>
void ProfilPainter::markEach(const NumberArray& flags, Draw&& draw) {
    _painter.setPen(QPen(inkColor(), 0.5));
    const qsizetype count = std::min(_geometry.samples(), flags.size());
    QPointF last(-1, 0);
    for (qsizetype i = 0; i < count; ++i) {
        if (flags.intAt(i) != 1) continue;
        const QPointF place = samplePlace(i);
        if (!std::isfinite(place.y()) || (_isRaster && place.x() - last.x() < 1)) continue;
        last = place;
        draw(place);
    }
}

void ProfilPainter::markStops() {
    _painter.setBrush(_style.ascColor);
    markEach(_profil.palierFlag,
             [this](QPointF place) { _painter.drawRect(QRectF(place.x() - 2.5, place.y() - 2.5, 5, 5)); });
}

void ProfilPainter::markAscents() {
    _painter.setBrush(_style.slowColor);
    markEach(_profil.vitesseFlag, [this](QPointF place) { _painter.drawPolygon(triangle(place, 1)); });
}

void ProfilPainter::markCeilings() {
    _painter.setBrush(systemcolor::red);
    markEach(_profil.ceilingFlag, [this](QPointF place) { _painter.drawPolygon(triangle(place, -1)); });
}

void ProfilPainter::markGases() {
    const qsizetype count = std::min(_geometry.samples(), _profil.gazFlag.size());
    qreal lastX = -1;
    for (qsizetype i = 0; i < count; ++i) {
        const int flag = _profil.gazFlag.intAt(i);
        const QString name = _profil.gasName(flag, _strings);
        const bool isWanted = _profil.isOxygen(flag) ? _style.alarmeGAZO2 : _style.alarmeGAZ;
        const QPointF place = samplePlace(i);
        if (name.isEmpty() || !isWanted || !std::isfinite(place.y())) continue;
        if (_isRaster && place.x() - lastX < 1) continue;
        lastX = place.x();
        _painter.setPen(QPen(inkColor(), 0.5));
        _painter.setBrush(_profil.isOxygen(flag) ? systemcolor::green : blue());
        _painter.drawEllipse(place, markerSize / 2, markerSize / 2);
        label(place.x() + 6, _size.height() - place.y() + 3, name);
    }
}

// --- What a reader wants to know ---

bool Profil::isOxygen(int flag) const {
    if (flag < 2 || flag > 4) return flag == 5;
    const ProfilMix& mix = bailouts[std::size_t(flag - 2)];
    return mix.o2 >= 98 && mix.he <= 0;
}

QString Profil::gasName(int flag, const Strings& strings) const {
    if (flag < 1 || flag > 5) return {};
    if (flag == 1) return strings.text({"Profil", "Bottom gas"});
    if (isOxygen(flag)) return strings.text({"Profil", "Oxygen"});
    const ProfilMix& mix = bailouts[std::size_t(flag - 2)];
    if (mix.he > 0) return strings.text(Message<int, int>{"Profil", "Tx %d/%d", "Tx %d/%d"}, mix.o2, mix.he);
    return strings.text(Message<int>{"Profil", "EAN %d", "EAN %d"}, mix.o2);
}

QString Profil::readOut(QPointF place, QSizeF size, const Strings& strings) const {
    const auto sample = ProfilGeometry(size, profilData).sampleAt(place);
    if (!sample) return strings.text({"Profil", "Depth no value"});
    const int seconds = int(qreal(*sample) * ProfilGeometry::secondsPerSample(samplingRate));
    const QString time = QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return strings.text(Message<double, QString>{"Profil", "Depth time"}, profilData.at(*sample), time);
}

}  // namespace sargan
