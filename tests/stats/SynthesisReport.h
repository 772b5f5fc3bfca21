#pragma once

#include "stats/StatsTests.h"
#include "stats/Synthesis.h"

namespace sargan {

/// Reports in the language of keys: every word stands as its key.
inline const Strings keyed{Strings::Language::Keys};

inline QStringList linesOf(const Plongee& dive, bool usUnits = false) {
    return diveReport(dive, keyed, usUnits).plainText().split(u'\n');
}

/// The line that begins with this label; null when there is none.
inline QString line(const Plongee& dive, const QString& label, bool usUnits = false) {
    for (const QString& found : linesOf(dive, usUnits))
        if (found.startsWith(label)) return found;
    return {};
}

inline bool hasLine(const Plongee& dive, const QString& text) {
    return linesOf(dive).contains(text);
}

inline Plongee fullDive() {
    Plongee dive;
    dive.setNoPlongee(12);
    dive.setDate(Moment::fromIso(QStringLiteral("2016-06-07")));
    dive.setLieu(QStringLiteral("Brest"));
    dive.setSite(QStringLiteral("La Vandrée"));
    dive.setPays(QStringLiteral("France"));
    dive.setGps(QStringLiteral("N 48 W 004"));
    dive.setGpsSystem(1);
    dive.setCoeff(95);
    dive.setPmBm(1);
    dive.setEpaves(QStringLiteral("Emmy"));
    dive.setPartenaires(QStringLiteral("Ann, Bob"));
    dive.setStructure(QStringLiteral("Club"));
    dive.setBateau(QStringLiteral("Albatros"));
    dive.setMeteo(1);
    dive.setVentSecteur(8);
    dive.setVentForce(5);
    dive.setCourant(2);
    dive.setVisibilite(8);
    dive.setTempEau(14);
    dive.setTempAir(-3);
    dive.setTypePlongee(0);
    dive.setNocturne(1);
    dive.setDifficulte(3);
    dive.setProfondeur(38.5F);
    dive.setTemps(47);
    dive.setSurface(QStringLiteral("02:30"));
    dive.setHeure(Moment::fromIso(QStringLiteral("2001-01-01T23:40:00")));
    dive.setAltitude(250);
    dive.setPAtm(1013);
    dive.setOrdinateur(QStringLiteral("Deep One"));
    dive.setLowGF(30);
    dive.setHighGF(85);
    dive.setDeco(1);
    dive.setDecoSoftName(QStringLiteral("Planner"));
    dive.setDecoAlgoType(QStringLiteral("ZHL16-C"));
    dive.setDecoConservatism(QStringLiteral("+2"));
    dive.setRuntime(QStringLiteral("RT 52"));
    dive.setDeco_TTS(9);
    dive.setConfiguration(1);
    dive.setCombinaison(1);
    dive.setEquip_1(QStringLiteral("Lamp"));
    dive.setEquip_12(QStringLiteral("Reel"));
    dive.setLestage(4.5F);
    dive.setNotes(QStringLiteral("Calm sea.\nTwo seals."));
    return dive;
}

}  // namespace sargan
