#pragma once

#include <array>

#include "platform/text/Strings.h"
#include "profile/ProfilGeometry.h"
#include "profile/ProfilStyle.h"

class QPainter;

namespace sargan {

/// A gas mix in per cent.
struct ProfilMix {
    int o2 = 0;
    int he = 0;
};

/// The graph of one dive's profile: depth and tank pressure against time, on any paint device. It shows and
/// does not edit. Lists may differ in length; the depths lead, and what is missing beside them is not drawn.
class Profil {
public:
    NumberArray profilData;   ///< depths, metres
    NumberArray palierFlag;   ///< 1: decompression stop
    NumberArray vitesseFlag;  ///< 1: ascent too fast
    NumberArray surfaceFlag;  ///< 1: at the surface
    NumberArray ceilingFlag;  ///< 1: above the ceiling
    /// 1: switch to the bottom gas, 2 to 4: to bail-out 1 to 3, 5: to oxygen.
    NumberArray gazFlag;
    NumberArray pressData;  ///< bar
    int samplingRate = 0;   ///< code; see ProfilGeometry
    float fracO2 = 0;       ///< of the mix, per cent
    float ppO2 = 0;         ///< greatest allowed, bar
    std::array<ProfilMix, 3> bailouts;
    int pressDepart = 0;  ///< bar
    int pressFin = 0;     ///< bar
    ProfilStyle style;

    /// A good size for files and windows, in points.
    static constexpr QSizeF usualSize{800, 450};

    /// Draws the graph into the rectangle of this size at the painter's origin.
    void draw(QPainter& painter, QSizeF size, const Strings& strings) const;

    /// What is under a place of the painter: depth and time of a sample, or that there is none.
    QString readOut(QPointF place, QSizeF size, const Strings& strings) const;

    /// The depth at which oxygen reaches `ppO2`, metres; infinite when the mix has none.
    qreal ppO2Depth() const { return (qreal(ppO2) / (qreal(fracO2) / 100) - 1) * 10; }
    /// The gas of a switch by its flag's value; empty for a value that means none.
    QString gasName(int flag, const Strings& strings) const;
    bool isOxygen(int flag) const;
};

}  // namespace sargan
