#include "registers/RegisterCard.h"
#include "registers/RegisterWords.h"
#include "registers/RepEpaves.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

QString knownOrDash(Float value, const QString& unit = {}) {
    return value < 0 ? u"-"_s : shortest(value) + unit;
}

QString rating(Int value, const Strings& strings) {
    return value == 0 ? strings.text({"Epaves", "N/A", "N/A"}) : registerwords::stars(value, strings);
}

void writeCharacteristics(CardWriter& card, const Epaves& wreck) {
    const Strings& strings = card.strings();
    const auto word = [&](std::span<const MenuItem> menu, Int tag) {
        return registerwords::word(menu, tag, strings, QString::number(tag));
    };
    const QString metres = u' ' + strings.text({"Epaves", "Depth unit"});
    const QString degrees = u' ' + strings.text({"Epaves", "Degree"});
    const bool hasOrientation = wreck.orientationSwitch() != 0 || wreck.orientation() != 0;
    const QString noPropulsion = strings.text({"Epaves", " N/A", " N/A"});
    card.heading({"Epaves", "Characteristics"});
    card.line({"Epaves", "Wreck type"}, wreck.type());
    card.line({"Epaves", "Wreck registration"}, wreck.immatriculation());
    card.line({"Epaves", "Wreck length"}, knownOrDash(wreck.longueur()));
    card.line({"Epaves", "Wreck wide"}, knownOrDash(wreck.largeur()));
    card.line({"Epaves", "Wreck tonnage"}, QString::number(wreck.jauge()));
    card.line({"Epaves", "Wreck material"}, word(wreckmenus::material, wreck.materiau()));
    card.line({"Epaves", "Wreck propulsion"},
              wreck.propulsion() == 0
                  ? noPropulsion
                  : registerwords::word(wreckmenus::propulsion, wreck.propulsion(), strings, noPropulsion));
    card.line({"Epaves", "Wreck type machine"}, wreck.typeMachine());
    card.line(
        {"Epaves", "Wreck power"},
        wreck.puissance() + registerwords::word(wreckmenus::powerUnit, wreck.puissancePopUp(), strings));
    card.line({"Epaves", "High depth"}, knownOrDash(wreck.pointHaut(), metres));
    card.line({"Epaves", "Low depth"}, knownOrDash(wreck.pointBas(), metres));
    card.line({"Epaves", "Bottom type"}, wreck.natureFond());
    card.line({"Epaves", "Orientation"},
              hasOrientation ? QString::number(wreck.orientation()) + degrees : u"-"_s);
    card.line({"Epaves", "Inclination"}, word(wreckmenus::heel, wreck.inclinaison()));
}

void writeHistory(CardWriter& card, const Epaves& wreck) {
    card.heading({"Epaves", "Historic"});
    card.line({"Epaves", "Wreck previous names"}, wreck.nomsPrecedents());
    card.line({"Epaves", "Nationality"}, wreck.nationalite());
    card.line({"Epaves", "Armateur"}, wreck.armateur());
    card.line({"Epaves", "Build date"}, wreck.dateConstruction());
    card.line({"Epaves", "Build location"}, wreck.lieuConstruction());
    card.line({"Epaves", "Harbours"}, wreck.ports());
    card.line({"Epaves", "Captain"}, wreck.capitaine());
    card.line({"Epaves", "Crew"}, wreck.equipage());
    card.line({"Epaves", "Cargo"}, wreck.chargement());
    card.line({"Epaves", "From port"}, wreck.provenance());
    card.line({"Epaves", "To port"}, wreck.destination());
    card.line({"Epaves", "Ship wreck date"}, wreck.dateNaufrage());
    card.line({"Epaves", "Ship wreck cause"}, wreck.causeNaufrage());
    card.line({"Epaves", "Updated on"}, cardDate(wreck.miseAJour()));
}

void writePlace(CardWriter& card, const Epaves& wreck) {
    const Strings& strings = card.strings();
    const auto word = [&](std::span<const MenuItem> menu, Int tag) {
        return registerwords::word(menu, tag, strings, QString::number(tag));
    };
    card.heading({"Epaves", "Localisation title"});
    card.line({"Epaves", "Location"}, wreck.lieu());
    card.line({"Epaves", "Site"}, wreck.site());
    card.line({"Epaves", "Country"}, wreck.pays());
    card.line({"Epaves", "GPS"},
              wreck.gps() + u" ("_s + word(wreckmenus::positionSystem, wreck.gpsSystem()) + u')');
    card.line({"Epaves", "Access"}, word(wreckmenus::difficulty, wreck.acces()));
    card.line({"Epaves", "Localisation"}, word(wreckmenus::difficulty, wreck.localisation()));
    card.line({"Epaves", "Interest"}, rating(wreck.interet(), strings));
    card.line({"Epaves", "Difficulty"}, rating(wreck.technicite(), strings));
    card.heading({"Epaves", "Land marks"});
    card.line({"Epaves", "Land mark 1"}, wreck.relevement1());
    card.line({"Epaves", "Land mark 2"}, wreck.relevement2());
    card.line({"Epaves", "Land mark 3"}, wreck.relevement3());
}

}  // namespace

void writeWreckCard(CardWriter& card, const Epaves& wreck, qsizetype) {
    card.title({"Epaves", "Wrecks"});
    card.rule("\r--------------------\r");
    card.line({"Epaves", "Wreck name"}, wreck.nom());
    writeCharacteristics(card, wreck);
    writeHistory(card, wreck);
    writePlace(card, wreck);
    card.line({"Epaves", "First visit date"}, cardDate(wreck.dateVisite()));
    card.line({"Epaves", "Remarks"}, wreck.notes());
    card.rule("\r--------------------\r");
    card.closing();
}

}  // namespace sargan
