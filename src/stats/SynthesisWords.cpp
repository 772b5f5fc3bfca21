#include "stats/SynthesisLines.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// A level of decompression: where a dive keeps it.
struct Level {
    const Float& (Plongee::*depth)() const;
    IntOf time;
    IntOf oxygen;
    IntOf helium;
};

constexpr Level levels[] = {
    {&Plongee::decoDepth_Level_1, &Plongee::decoTime_Level_1, &Plongee::decoO2_Level_1,
     &Plongee::decoHe_Level_1},
    {&Plongee::decoDepth_Level_2, &Plongee::decoTime_Level_2, &Plongee::decoO2_Level_2,
     &Plongee::decoHe_Level_2},
    {&Plongee::decoDepth_Level_3, &Plongee::decoTime_Level_3, &Plongee::decoO2_Level_3,
     &Plongee::decoHe_Level_3},
    {&Plongee::decoDepth_Level_4, &Plongee::decoTime_Level_4, &Plongee::decoO2_Level_4,
     &Plongee::decoHe_Level_4},
    {&Plongee::decoDepth_Level_5, &Plongee::decoTime_Level_5, &Plongee::decoO2_Level_5,
     &Plongee::decoHe_Level_5},
    {&Plongee::decoDepth_Level_6, &Plongee::decoTime_Level_6, &Plongee::decoO2_Level_6,
     &Plongee::decoHe_Level_6},
};

constexpr qint32 oxygenInAir = 21;

/// Without helium at most 21 per cent of oxygen is air; with helium, more than that is helitrox.
QString stopGas(qint32 oxygen, qint32 helium) {
    if (helium > 0)
        return (oxygen > oxygenInAir ? u"(Helitrox %1/%2)"_s : u"(Trimix %1/%2)"_s).arg(oxygen).arg(helium);
    return oxygen > oxygenInAir ? u"(Nitrox %1)"_s.arg(oxygen) : u"(Air)"_s;
}

}  // namespace

QString wordOf(std::span<const MenuItem> menu, qint32 code, const Strings& strings) {
    for (const MenuItem& item : menu)
        if (item.tag == code) return strings.text(item.words);
    return {};
}

QString depthText(const QString& number, const ReportedDive& reported) {
    return withUnit(number, reported.usUnits ? "ft" : "m");
}

QString temperatureText(qint32 degrees, const ReportedDive& reported) {
    constexpr qint32 notRecorded = -50;
    if (degrees == notRecorded) return {};
    return QString::number(degrees) + (reported.usUnits ? u" °F"_s : u" °C"_s);
}

QString stopText(const ReportedDive& reported, int level) {
    const Level& stop = levels[level];
    const Plongee& dive = reported.dive;
    const Int time = (dive.*stop.time)();
    // The form proposes depths for all six stops; one without a time was not made.
    if (time == 0) return {};
    const std::array<FormatArgument, 3> arguments{(dive.*stop.depth)(), qint64(time),
                                                  stopGas((dive.*stop.oxygen)(), (dive.*stop.helium)())};
    return fillFormat(reported.usUnits ? u"\n   - %.1f ft : %d min. - %@" : u"\n   - %.1f m : %d min. - %@",
                      arguments);
}

QString mixText(qint32 gas, qint32 oxygen, qint32 helium) {
    switch (gas) {
        case 0:
            return u"Air"_s;
        case 1:
            return u"Nitrox %1"_s.arg(oxygen);
        case 2:
            return u"Trimix %1/%2"_s.arg(oxygen).arg(helium);
        case 3:
            return u"Heliox %1"_s.arg(oxygen);
        case 4:
            return u"Helitrox %1/%2"_s.arg(oxygen).arg(helium);
        case 5:
            return u"Heliair %1/%2"_s.arg(oxygen).arg(helium);
        default:
            return {};
    }
}

}  // namespace sargan
