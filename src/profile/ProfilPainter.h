#pragma once

#include <QFont>
#include <QPainterPath>

#include "profile/Profil.h"

namespace sargan {

/// A curve as it is stroked: a line, or one bar a column of pixels where the line would only fill them. Then
/// the line goes along the bars' lower ends.
struct ProfilCurve {
    QPolygonF line;
    QList<QRectF> bars;
};

/// One drawing of a profile's graph: the paths, built anew each time, and the order in which they are drawn.
class ProfilPainter {
public:
    ProfilPainter(const Profil& profil, QPainter& painter, QSizeF size, const Strings& strings);

    void draw();

private:
    // Axes
    void drawAxes();
    void depthAxis();
    void timeAxis(qreal y, qreal labelBase);
    void pressureScale();
    void tick(qreal x1, qreal y1, qreal x2, qreal y2);
    void label(qreal x, qreal y, const QString& text, Qt::Alignment alignment = Qt::AlignLeft);
    /// How many labelled places to pass over so that labels with this spacing do not touch.
    static qreal stride(qreal spacing, qreal needed);

    // Curves
    void drawProfileBackGround();
    void buildProfile();
    void addPpO2Line();
    void addGas();
    void addSurfaceFlags();
    template <class Value>
    ProfilCurve curve(qsizetype count, Value&& value) const;
    void stroke(const ProfilCurve& curve, const QColor& color);

    // Markers
    void drawFlags();
    void markStops();
    void markAscents();
    void markCeilings();
    void markGases();
    template <class Draw>
    void markEach(const NumberArray& flags, Draw&& draw);

    void strokeLines(const QList<QLineF>& lines, const QPen& pen);
    QPointF at(qreal x, qreal y) const { return _geometry.toPainter(x, y); }
    QPointF samplePlace(qsizetype sample) const;
    QColor inkColor() const;
    QColor blue() const;
    bool isDark() const;

    const Profil& _profil;
    const ProfilStyle& _style;
    QPainter& _painter;
    QSizeF _size;
    const Strings& _strings;
    ProfilGeometry _geometry;
    QFont _font;
    bool _isRaster;

    QList<QLineF> _ticks, _dashes, _ppO2Lines, _surfaceFlags;
    ProfilCurve _profile, _gas;
};

}  // namespace sargan
