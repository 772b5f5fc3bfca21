#include "stats/Graphes.h"

#include <QPainter>
#include <cmath>

#include "platform/form/SystemColors.h"
#include "platform/print/StyledText.h"
#include "platform/text/Message.h"
#include "settings/Colors.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal origin = 50;
constexpr qreal barWidth = 60;
constexpr qreal tick = 8;
constexpr int ticks = 10;
constexpr qreal tickStep = Graphes::grapheSizeY / ticks;
constexpr qreal fontSize = 11;
constexpr qreal farthest = 10000;

constexpr QColor depthFill{0, 0, 255};
constexpr QColor airFill{255, 255, 255};
constexpr QColor nitroxFill{0, 255, 0};
constexpr QColor heliumFill{153, 102, 51};
constexpr std::array<QColor, graphesValues.size()> fills = {depthFill,  depthFill,  depthFill, depthFill,
                                                            depthFill,  depthFill,  depthFill, airFill,
                                                            nitroxFill, heliumFill, heliumFill};

struct Category {
    qreal x;
    const char* text;
};
/// The same in every language.
constexpr Category categories[] = {
    {90, "0 - 9 m"},    {148, "10 - 19 m"}, {215, "20 - 29 m"}, {278, "30 - 39 m"},
    {345, "40 - 49 m"}, {410, "50 - 59 m"}, {475, "60 m et +"}, {620, "Air"},
    {679, "Nitrox"},    {744, "Trimix"},    {807, "Heliox"},
};

/// The graph counts its heights from below, the painter from above.
QPointF at(qreal x, qreal y) {
    return {x, Graphes::height - y};
}

/// A share's height. What is no number stays on the axis, what leaves the view is cut far outside of it.
qreal heightOf(float share) {
    if (std::isnan(share)) return origin;
    return std::clamp(Graphes::grapheSizeY * qreal(share) / 100 + origin, -farthest, farthest);
}

QFont labelFont() {
    QFont font = printFont(fontSize);
    font.setFamilies({u"Lucida Grande"_s, font.family()});
    return font;
}

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(float(std::clamp(opacity, 0.0, 1.0)));
    return color;
}

}  // namespace

GraphesStyle GraphesStyle::of(const UserDefaults& defaults) {
    GraphesStyle style;
    style.gradient = defaults.boolean(u"gradient yes"_s);
    style.dashedLines = defaults.boolean(u"dashed lines"_s);
    style.background = withOpacity(storedColor(defaults, u"background color"_s, systemcolor::gray),
                                   defaults.number(u"alpha background color"_s));
    style.labels = style.gradient ? storedColor(defaults, u"gradient lines color"_s, systemcolor::black)
                                  : systemcolor::black;
    return style;
}

Drawing Graphes::drawing(const GraphesShares& shares, const GraphesStyle& style) {
    return {{width, height},
            [graphes = Graphes(shares, style)](QPainter& painter) { graphes.drawRect(painter); }};
}

void Graphes::drawRect(QPainter& painter) const {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(0, 0, width, height), _style.background);
    painter.setFont(labelFont());
    drawAxes(painter);
    drawGraphes(painter);
    if (_style.dashedLines && _style.gradient) drawGrid(painter);
    painter.restore();
}

void Graphes::drawAxes(QPainter& painter) const {
    painter.setPen(QPen(Qt::black, 1));
    painter.drawLine(at(origin, origin), at(grapheSizeX, origin));
    painter.drawLine(at(origin, origin), at(origin, grapheSizeY + origin));
    for (int k = 0; k <= ticks; ++k) {
        const qreal y = origin + k * tickStep;
        painter.setPen(QPen(Qt::black, 1));
        painter.drawLine(at(origin, y), at(origin + tick, y));
        drawText(painter, 6, y - 7, u"%1 %"_s.arg(10 * k));
    }
    for (const Category& category : categories)
        drawText(painter, category.x, grapheOffsetY, QLatin1String(category.text));
}

void Graphes::drawGrid(QPainter& painter) const {
    QPen pen(Qt::black, 0.1);
    pen.setCapStyle(Qt::FlatCap);
    // Five on, three off, counted in widths of the line.
    pen.setDashPattern({50, 30});
    painter.setPen(pen);
    for (int k = 1; k <= ticks; ++k) {
        const qreal y = origin + k * tickStep;
        painter.drawLine(at(origin, y), at(grapheSizeX, y));
    }
}

void Graphes::drawGraphes(QPainter& painter) const {
    for (std::size_t i = 0; i < graphesValues.size(); ++i) {
        const qreal top = heightOf(_shares[i]);
        painter.setPen(QPen(Qt::black, 1));
        painter.setBrush(fills[i]);
        const qreal left = graphesValues[i].barLeft;
        painter.drawRect(QRectF(at(left, top), at(left + barWidth, origin)).normalized());
        const std::array<FormatArgument, 1> share{_shares[i]};
        drawText(painter, graphesValues[i].labelLeft, top, fillFormat(u"%.1f %%", share));
    }
}

void Graphes::drawText(QPainter& painter, qreal x, qreal y, const QString& text) const {
    // The point is the lower left corner of the text, below its descenders.
    painter.setPen(_style.labels);
    painter.drawText(at(x, y + QFontMetricsF(painter.font()).descent()), text);
}

}  // namespace sargan
