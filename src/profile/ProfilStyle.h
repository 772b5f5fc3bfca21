#pragma once

#include <QColor>

namespace sargan {

/// How the graph of a profile looks: what the user has set, decoded.
struct ProfilStyle {
    QColor plotColor;
    bool fillPlot = false;
    QColor fillColor;        ///< with its opacity
    QColor backgroundColor;  ///< with its opacity
    bool gradient = false;   ///< deep water behind the graph, and axes in `linesColor`
    QColor linesColor;       ///< of ticks and dashed lines
    bool xMinorTicks = false;
    bool yMinorTicks = false;
    bool dashedLines = false;
    bool ppO2Line = false;
    bool shadow = false;  ///< beneath the gas curve

    // Which markers are shown.
    bool alarmeASC = false;
    bool alarmeSLOW = false;
    bool alarmeCEIL = false;
    bool alarmeGAZ = false;
    bool alarmeGAZO2 = false;
    QColor ascColor;
    QColor slowColor;
};

}  // namespace sargan
