#include "stats/SynthesisLines.h"

#include "logbook/DiveMenus.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

using enum LineKind;
using Dive = const ReportedDive&;

constexpr Message<> noLabel = {nullptr, nullptr};

QString day(const Date& date) {
    return orEmpty(date.local().toString(u"dd/MM/yyyy"_s));
}

QString clockTime(const QDateTime& time) {
    return orEmpty(time.toString(u"HH:mm"_s));
}

/// The position behind its datum. The untouched template of the form is no position.
QString position(Dive d) {
    const QString datum = d.dive.gpsSystem() == 1   ? u"GPS (WGS84) : "_s
                          : d.dive.gpsSystem() == 2 ? u"GPS (ED50) : "_s
                                                    : u"GPS (...) : "_s;
    const bool isBlank = d.dive.gps() == d.strings.text(Message<>{"Carnet", "GPS template"});
    return datum + (isBlank ? QString() : d.dive.gps());
}

QString tide(Dive d) {
    const Message<> state = d.dive.pmBm() == 1   ? Message<>{"Carnet", "(Pleine mer)", "(Pleine mer)"}
                            : d.dive.pmBm() == 2 ? Message<>{"Carnet", "(Basse mer)", "(Basse mer)"}
                                                 : Message<>{"Carnet", "(...)", "(...)"};
    return QString::number(d.dive.coeff()) + u' ' + d.strings.text(state);
}

/// The stored code is one above the force; 0 is no force.
QString wind(Dive d) {
    if (d.dive.ventForce() <= 0) return d.strings.text(Message<>{"Carnet", "No wind"});
    return u"%1 %2, %3 %4"_s
        .arg(d.strings.text(Message<>{"Carnet", "Wind sector"}),
             wordOf(divemenus::windSector, d.dive.ventSecteur(), d.strings),
             d.strings.text(Message<>{"Carnet", "Wind force"}))
        .arg(qint64(d.dive.ventForce()) - 1);
}

/// Codes beyond the family's ends are worded as its ends.
QString difficulty(Dive d) {
    static constexpr Message<> words[] = {{"Main", "Cotation 0"}, {"Main", "Cotation 1"},
                                          {"Main", "Cotation 2"}, {"Main", "Cotation 3"},
                                          {"Main", "Cotation 4"}, {"Main", "Cotation 5"}};
    return d.strings.text(words[std::clamp(d.dive.difficulte(), 0, 5)]);
}

QString endTime(Dive d) {
    const QDateTime start = d.dive.heure().local();
    return clockTime(start.addSecs(qint64(d.dive.temps()) * 60));
}

QString gradientFactors(Dive d) {
    if (d.dive.lowGF() == 0 && d.dive.highGF() == 0) return {};
    return u"GF : %1/%2"_s.arg(d.dive.lowGF()).arg(d.dive.highGF());
}

/// The two kinds of tables; other methods are told by the computer's name.
QString tables(Dive d) {
    if (d.dive.deco() == 0) return u'\r' + d.strings.text(Message<>{"Carnet", "Air tables"});
    if (d.dive.deco() == 1) return u'\r' + d.strings.text(Message<>{"Carnet", "Nitrox tables"});
    return {};
}

/// What the blank form holds stands for nothing.
bool isRecorded(const QString& text) {
    return !text.isEmpty() && text != "-"_L1;
}

/// Null when nothing of a planned run is recorded.
QString plannedRun(Dive d) {
    const bool isPlanned = isRecorded(d.dive.decoSoftName()) || isRecorded(d.dive.decoAlgoType()) ||
                           isRecorded(d.dive.decoConservatism()) || isRecorded(d.dive.runtime());
    return isPlanned ? u""_s : QString();
}

constexpr ReportLine general[] = {
    {Title, {"Carnet", "Dive number"}, [](Dive d) { return QString::number(d.dive.noPlongee()); }},

    {Section, {"Carnet", "General"}, nullptr},
    {Item, {"Carnet", "Date"}, [](Dive d) { return day(d.dive.date()); }},
    {Item, {"Carnet", "Location"}, [](Dive d) { return orEmpty(d.dive.lieu()); }},
    {Item, {"Carnet", "Site"}, [](Dive d) { return orEmpty(d.dive.site()); }},
    {Item, {"Carnet", "Pays"}, [](Dive d) { return orEmpty(d.dive.pays()); }},
    {Named, noLabel, &position},
    {Item, {"Carnet", "Tide coefficient"}, &tide},
    {Item, {"Carnet", "Wrecks"}, [](Dive d) { return orEmpty(d.dive.epaves()); }},
    {Item, {"Carnet", "Buddies"}, [](Dive d) { return orEmpty(d.dive.partenaires()); }},
    {Item, {"Carnet", "Structure"}, [](Dive d) { return orEmpty(d.dive.structure()); }},
    {Item, {"Carnet", "Boat"}, [](Dive d) { return orEmpty(d.dive.bateau()); }},

    {Section, {"Carnet", "Conditions"}, nullptr},
    {Item,
     {"Carnet", "Weather"},
     [](Dive d) { return wordOf(divemenus::weather, d.dive.meteo(), d.strings); }},
    {Item, {"Carnet", "Wind"}, &wind},
    {Item,
     {"Carnet", "Current"},
     [](Dive d) { return wordOf(divemenus::current, d.dive.courant(), d.strings); }},
    {Item,
     {"Carnet", "Visibility"},
     [](Dive d) { return wordOf(divemenus::visibility, d.dive.visibilite(), d.strings); }},
    {Item, {"Carnet", "Water temperature"}, [](Dive d) { return temperatureText(d.dive.tempEau(), d); }},
    {Item, {"Carnet", "Air temperature"}, [](Dive d) { return temperatureText(d.dive.tempAir(), d); }},
    {Item,
     {"Carnet", "Dive type"},
     [](Dive d) { return wordOf(divemenus::diveType, d.dive.typePlongee(), d.strings); }},
    {Heading, {"Carnet", "Night"}, [](Dive d) { return d.dive.nocturne() != 0 ? u""_s : QString(); }},
    {Item, {"Carnet", "Difficulty level"}, &difficulty},

    {Section, {"Carnet", "Parameters"}, nullptr},
    {Item, {"Carnet", "Depth"}, [](Dive d) { return depthText(shortest(d.dive.profondeur()), d); }},
    {Item, {"Carnet", "Time"}, [](Dive d) { return withUnit(d.dive.temps(), "min."); }},
    {Item, {"Carnet", "Surface"}, [](Dive d) { return orEmpty(d.dive.surface()); }},
    {Item, {"Carnet", "Start time"}, [](Dive d) { return clockTime(d.dive.heure().local()); }},
    {Item, {"Carnet", "End time"}, &endTime},
    {Item, {"Carnet", "Altitude"}, [](Dive d) { return depthText(QString::number(d.dive.altitude()), d); }},
    {Item, {"Carnet", "PAtm"}, [](Dive d) { return withUnit(d.dive.pAtm(), "hPa"); }},

    {Section, {"Carnet", "Decompression"}, nullptr},
    {Item, {"Carnet", "Computer"}, [](Dive d) { return orEmpty(d.dive.ordinateur()); }},
    {Named, noLabel, &gradientFactors},
    {Text, noLabel, &tables},
    {Heading, {"Carnet", " Run Time"}, &plannedRun},
    {Item, {"Carnet", "Deco soft name"}, [](Dive d) { return orEmpty(d.dive.decoSoftName()); }},
    {Item, {"Carnet", "Deco algorythm type"}, [](Dive d) { return orEmpty(d.dive.decoAlgoType()); }},
    {Item, {"Carnet", "Deco conservatism"}, [](Dive d) { return orEmpty(d.dive.decoConservatism()); }},
    {Item, {"Carnet", "Detail runtime"}, [](Dive d) { return orEmpty(d.dive.runtime()); }},
    {Item, {"Carnet", "TTS"}, [](Dive d) { return withUnit(d.dive.deco_TTS(), "min."); }},
    {Text, noLabel, [](Dive d) { return stopText(d, 0); }},
    {Text, noLabel, [](Dive d) { return stopText(d, 1); }},
    {Text, noLabel, [](Dive d) { return stopText(d, 2); }},
    {Text, noLabel, [](Dive d) { return stopText(d, 3); }},
    {Text, noLabel, [](Dive d) { return stopText(d, 4); }},
    {Text, noLabel, [](Dive d) { return stopText(d, 5); }},
};

QString configuration(Dive d) {
    return d.strings.text(d.dive.configuration() == 1 ? Message<>{"Carnet", "Tek configuration"}
                                                      : Message<>{"Carnet", "No Tek"});
}

/// Each on a line of its own; two of the keys bring the line break with them.
QString suit(Dive d) {
    if (d.dive.combinaison() == 2) return d.strings.text(Message<>{"Carnet", "\r   - Shorty"});
    if (d.dive.combinaison() == 5) return d.strings.text(Message<>{"Carnet", "\r   - T-shirt"});
    const QString word = wordOf(divemenus::suit, d.dive.combinaison(), d.strings);
    return word.isNull() ? word : u"\r   - "_s + word;
}

template <const QString& (Plongee::*piece)() const>
QString equipment(Dive d) {
    const QString text = (d.dive.*piece)();
    return text.isEmpty() ? QString() : u"\r   - "_s + text;
}

constexpr ReportLine equipped[] = {
    {Section, {"Carnet", "Equipment"}, nullptr},
    {Item, {"Carnet", "Configuration"}, &configuration},
    {Text, noLabel, &suit},
    {Text, noLabel, &equipment<&Plongee::equip_1>},
    {Text, noLabel, &equipment<&Plongee::equip_2>},
    {Text, noLabel, &equipment<&Plongee::equip_3>},
    {Text, noLabel, &equipment<&Plongee::equip_4>},
    {Text, noLabel, &equipment<&Plongee::equip_5>},
    {Text, noLabel, &equipment<&Plongee::equip_6>},
    {Text, noLabel, &equipment<&Plongee::equip_7>},
    {Text, noLabel, &equipment<&Plongee::equip_8>},
    {Text, noLabel, &equipment<&Plongee::equip_9>},
    {Text, noLabel, &equipment<&Plongee::equip_10>},
    {Text, noLabel, &equipment<&Plongee::equip_11>},
    {Text, noLabel, &equipment<&Plongee::equip_12>},
    {Item, {"Carnet", "Weight"}, [](Dive d) { return withUnit(shortest(d.dive.lestage()), "kg"); }},

    {Section, {"Carnet", "Notes"}, nullptr},
    {Text, noLabel, [](Dive d) { return u'\r' + d.dive.notes(); }},
};

}  // namespace

std::array<std::span<const ReportLine>, 3> reportParts() {
    return {generalLines(), gasLines(), equipmentLines()};
}

std::span<const ReportLine> generalLines() {
    return general;
}

std::span<const ReportLine> equipmentLines() {
    return equipped;
}

}  // namespace sargan
