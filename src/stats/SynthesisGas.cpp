#include "logbook/DiveMenus.h"
#include "stats/SynthesisLines.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

using enum LineKind;
using Dive = const ReportedDive&;

constexpr Message<> noLabel = {nullptr, nullptr};

bool isRebreather(Dive d) {
    return d.dive.rebreather() != 0;
}
bool isClosed(Dive d) {
    return d.dive.rebreather() != 0 && d.dive.rebreather() != 1;
}

/// A cylinder: where a dive keeps it.
struct Tank {
    IntOf alloy;
    IntOf volume;
    IntOf pressure;
    IntOf start;
    IntOf end;
};

constexpr Tank mainTank{&Plongee::alliageBloc, &Plongee::volumeBloc, &Plongee::pressionBloc,
                        &Plongee::pressionDepart, &Plongee::pressionFin};
constexpr Tank secondTank{&Plongee::alliageBloc_2, &Plongee::volumeBloc_2, &Plongee::pressionBloc_2,
                          &Plongee::pressionDepart_2, &Plongee::pressionFin_2};

/// A rebreather always has its second cylinder; a diver on open circuit has one when anything of it is
/// recorded.
template <const Tank& tank>
bool isThere(Dive d) {
    if (&tank == &mainTank || isRebreather(d)) return true;
    return (d.dive.*tank.volume)() != 0 || (d.dive.*tank.start)() != 0 || (d.dive.*tank.end)() != 0;
}

template <const Tank& tank>
qint64 usedPressure(Dive d) {
    return qint64((d.dive.*tank.start)()) - (d.dive.*tank.end)();
}

/// A value of a cylinder that is there, else null.
template <const Tank& tank, QString (*text)(Dive)>
QString ofTank(Dive d) {
    return isThere<tank>(d) ? text(d) : QString();
}

template <const Tank& tank>
QString heading(Dive d) {
    if (&tank == &mainTank)
        return d.strings.text(isClosed(d) ? Message<>{"Carnet", "Oxygen"} : Message<>{"Carnet", "Tank_1"});
    return d.strings.text(isRebreather(d) ? Message<>{"Carnet", "Diluent"} : Message<>{"Carnet", "Tank_2"});
}

template <const Tank& tank>
QString alloy(Dive d) {
    const QString word = wordOf(divemenus::tankMaterial, (d.dive.*tank.alloy)(), d.strings);
    return u"\r   - "_s + (word.isNull() ? d.strings.text(Message<>{"Carnet", "Carbon"}) : word);
}

template <const Tank& tank>
QString capacity(Dive d) {
    return u"%1 litres %2 %3 bar"_s.arg((d.dive.*tank.volume)())
        .arg(d.strings.text(Message<>{"Carnet", "At"}))
        .arg((d.dive.*tank.pressure)());
}

template <const Tank& tank>
QString startPressure(Dive d) {
    return withUnit((d.dive.*tank.start)(), "bar");
}

template <const Tank& tank>
QString endPressure(Dive d) {
    return withUnit((d.dive.*tank.end)(), "bar");
}

template <const Tank& tank>
QString usedBars(Dive d) {
    return withUnit(usedPressure<tank>(d), "bar");
}

template <const Tank& tank>
QString available(Dive d) {
    return withUnit(qint64((d.dive.*tank.volume)()) * (d.dive.*tank.start)(), "litres");
}

/// Volume x pressure drop; an open circuit's gas was breathed, a rebreather's was used.
template <const Tank& tank, bool onRebreather>
QString consumed(Dive d) {
    if (isRebreather(d) != onRebreather) return {};
    return withUnit(qint64((d.dive.*tank.volume)()) * usedPressure<tank>(d), "litres");
}

QString mainMix(Dive d) {
    if (isClosed(d)) return u"\r   - "_s + d.strings.text(Message<>{"Carnet", "Oxygen gas"});
    const QString mix = mixText(d.dive.gaz(), d.dive.o2Mix(), d.dive.heMix());
    return mix.isNull() ? mix : u"\r   - "_s + mix;
}

QString secondMix(Dive d) {
    const QString mix = mixText(d.dive.gaz_2(), d.dive.o2Mix_2(), d.dive.heMix_2());
    return mix.isNull() ? mix : u"\r   - "_s + mix;
}

QString flow(Dive d) {
    if (!isRebreather(d) && d.dive.flow() == 0) return {};
    return withUnit(shortest(d.dive.flow()), "L/min.");
}

/// A cylinder for decompression or bail-out.
struct Stage {
    IntOf volume;
    IntOf start;
    IntOf end;
    IntOf oxygen;
    IntOf helium;
    const char16_t* format;  ///< of one without helium
    const char16_t* heliumFormat;

    bool isThere(const Plongee& dive) const {
        return (dive.*volume)() != 0 || (dive.*start)() != 0 || (dive.*end)() != 0;
    }
};

// Only the first of these formats has a place for the oxygen, so the others take none.
constexpr Stage ponies[] = {
    {&Plongee::volPony1, &Plongee::pressDepartPony1, &Plongee::pressFinPony1, &Plongee::decoO2_Level_1,
     nullptr, u"\r   - Deco 1 : %d %% O₂ (%d-%d bar)", nullptr},
    {&Plongee::volPony2, &Plongee::pressDepartPony2, &Plongee::pressFinPony2, nullptr, nullptr,
     u"\r   - Deco 2 : %% O₂ (%d-%d bar)", nullptr},
    {&Plongee::volPony3, &Plongee::pressDepartPony3, &Plongee::pressFinPony3, nullptr, nullptr,
     u"\r   - Deco 3 : %% O₂ (%d-%d bar)", nullptr},
};

constexpr Stage bailouts[] = {
    {&Plongee::volBailout1, &Plongee::pressDepartBailout1, &Plongee::pressFinBailout1, &Plongee::O2Bailout1,
     &Plongee::HeBailout1, u"\r   - Bail-out 1 : Nx %d (%d-%d bar)",
     u"\r   - Bail-out 1 : Tx %d/%d (%d-%d bar)"},
    {&Plongee::volBailout2, &Plongee::pressDepartBailout2, &Plongee::pressFinBailout2, &Plongee::O2Bailout2,
     &Plongee::HeBailout2, u"\r   - Bail-out 2 : Nx %d (%d-%d bar)",
     u"\r   - Bail-out 2 : Tx %d/%d (%d-%d bar)"},
    {&Plongee::volBailout3, &Plongee::pressDepartBailout3, &Plongee::pressFinBailout3, &Plongee::O2Bailout3,
     &Plongee::HeBailout3, u"\r   - Bail-out 3 : Nx %d (%d-%d bar)",
     u"\r   - Bail-out 3 : Tx %d/%d (%d-%d bar)"},
};

QString textOf(const Stage& stage, Dive d) {
    if (!stage.isThere(d.dive)) return {};
    const bool hasHelium = stage.helium && (d.dive.*stage.helium)() > 0;
    std::vector<FormatArgument> arguments;
    if (stage.oxygen) arguments.push_back(qint64((d.dive.*stage.oxygen)()));
    if (hasHelium) arguments.push_back(qint64((d.dive.*stage.helium)()));
    arguments.push_back(qint64((d.dive.*stage.start)()));
    arguments.push_back(qint64((d.dive.*stage.end)()));
    return fillFormat(hasHelium ? stage.heliumFormat : stage.format, arguments);
}

template <const Stage (&stages)[3], int place>
QString stageText(Dive d) {
    return textOf(stages[place], d);
}

template <const Stage (&stages)[3]>
QString anyOf(Dive d) {
    const bool found = std::any_of(std::begin(stages), std::end(stages),
                                   [&](const Stage& stage) { return stage.isThere(d.dive); });
    return found ? u""_s : QString();
}

template <const Tank& tank>
QString consumedOnRebreather(Dive d) {
    return consumed<tank, true>(d);
}
template <const Tank& tank>
QString consumedOnOpenCircuit(Dive d) {
    return consumed<tank, false>(d);
}

QString apparatus(Dive d) {
    return d.strings.text(d.dive.rebreather() == 0   ? Message<>{"Carnet", "Open circuit"}
                          : d.dive.rebreather() == 1 ? Message<>{"Carnet", "SCR rebreather"}
                                                     : Message<>{"Carnet", "CCR rebreather"});
}

constexpr ReportLine gas[] = {
    {Section, {"Carnet", "Gas"}, nullptr},
    {Item, {"Carnet", "Scaphander"}, &apparatus},

    {Heading, noLabel, &heading<mainTank>},
    {Text, noLabel, &alloy<mainTank>},
    {Item, {"Carnet", "Tank pressure"}, &capacity<mainTank>},
    {Item, {"Carnet", "Start pressure"}, &startPressure<mainTank>},
    {Item, {"Carnet", "End pressure"}, &endPressure<mainTank>},
    {Item, {"Carnet", "Used pressure"}, &usedBars<mainTank>},
    {Item, {"Carnet", "Available gas"}, &available<mainTank>},
    {Item, {"Carnet", "Breathed gas"}, &consumedOnOpenCircuit<mainTank>},
    {Item, {"Carnet", "Used gas"}, &consumedOnRebreather<mainTank>},
    {Text, noLabel, &mainMix},
    {Item, {"Carnet", "Flow"}, &flow},

    {Heading, noLabel, &ofTank<secondTank, &heading<secondTank>>},
    {Text, noLabel, &ofTank<secondTank, &alloy<secondTank>>},
    {Item, {"Carnet", "Tank pressure"}, &ofTank<secondTank, &capacity<secondTank>>},
    {Item, {"Carnet", "Start pressure"}, &ofTank<secondTank, &startPressure<secondTank>>},
    {Item, {"Carnet", "End pressure"}, &ofTank<secondTank, &endPressure<secondTank>>},
    {Item, {"Carnet", "Used pressure"}, &ofTank<secondTank, &usedBars<secondTank>>},
    {Item, {"Carnet", "Available gas"}, &ofTank<secondTank, &available<secondTank>>},
    {Item, {"Carnet", "Breathed gas"}, &ofTank<secondTank, &consumedOnOpenCircuit<secondTank>>},
    {Item, {"Carnet", "Used gas"}, &ofTank<secondTank, &consumedOnRebreather<secondTank>>},
    {Text, noLabel, &ofTank<secondTank, &secondMix>},

    {Heading, {"Carnet", "Ponies"}, &anyOf<ponies>},
    {Text, noLabel, &stageText<ponies, 0>},
    {Text, noLabel, &stageText<ponies, 1>},
    {Text, noLabel, &stageText<ponies, 2>},

    {Heading, {"Carnet", "Bail-out :"}, &anyOf<bailouts>},
    {Text, noLabel, &stageText<bailouts, 0>},
    {Text, noLabel, &stageText<bailouts, 1>},
    {Text, noLabel, &stageText<bailouts, 2>},
};

}  // namespace

std::span<const ReportLine> gasLines() {
    return gas;
}

}  // namespace sargan
