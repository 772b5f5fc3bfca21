#pragma once

#include <array>

#include "platform/desk/UserDefaults.h"
#include "platform/print/Drawing.h"

namespace sargan {

/// One of the graph's eleven values: its name, the panel's field that it comes from, where its bar and its
/// figure stand.
struct GraphesValue {
    const char* name;
    const char* field;
    qreal barLeft;
    qreal labelLeft;
};

inline constexpr std::array<GraphesValue, 11> graphesValues = {{
    {"depth_level_1", "statProf_1Field", 80, 95},
    {"depth_level_2", "statProf_2Field", 145, 160},
    {"depth_level_3", "statProf_3Field", 210, 225},
    {"depth_level_4", "statProf_4Field", 275, 290},
    {"depth_level_5", "statProf_5Field", 340, 355},
    {"depth_level_6", "statProf_6Field", 405, 420},
    {"depth_level_7", "statProf_7Field", 470, 485},
    {"air", "statAirField", 600, 615},
    {"nitrox", "statNitroxField", 665, 680},
    {"trimix", "statTrimixField", 730, 745},
    {"heliox", "statHelioxField", 795, 810},
}};

/// Per cent of all dives, in the order of `graphesValues`. Not finite when there is no dive.
using GraphesShares = std::array<float, graphesValues.size()>;

/// How the graph looks: what the user has set, decoded.
struct GraphesStyle {
    QColor background;  ///< with its opacity
    QColor labels;
    bool dashedLines = false;  ///< the grid; it shows only with the gradient on
    bool gradient = false;

    static GraphesStyle of(const UserDefaults& defaults);
};

/// The bars of depth classes and gases, on any paint device.
class Graphes {
public:
    static constexpr qreal width = 900;
    static constexpr qreal height = 500;
    static constexpr qreal grapheSizeX = 850;
    static constexpr qreal grapheSizeY = 400;
    static constexpr qreal grapheOffsetY = 23;

    Graphes(const GraphesShares& shares, const GraphesStyle& style) : _shares(shares), _style(style) {}

    /// Draws the view, 900 x 500 units from the origin on.
    void drawRect(QPainter& painter) const;
    static Drawing drawing(const GraphesShares& shares, const GraphesStyle& style);

private:
    void drawAxes(QPainter& painter) const;
    void drawGrid(QPainter& painter) const;
    void drawGraphes(QPainter& painter) const;
    void drawText(QPainter& painter, qreal x, qreal y, const QString& text) const;

    GraphesShares _shares;
    GraphesStyle _style;
};

}  // namespace sargan
