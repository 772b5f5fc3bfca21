#include "registers/Epaves.h"

namespace sargan {

namespace {

using F = EpavesFields;

// The order is the file format. The third bearing is never written: its place repeats the first one.
constexpr auto epavesSlots = std::to_array<Slot<Epaves>>({
    slot(F::nom),
    slot(F::type),
    slot(F::immatriculation),
    slot(F::nationalite),

    oldInt(F::longueur).until(3),
    oldInt(F::largeur).until(3),
    slot(F::longueur).since(4),
    slot(F::largeur).since(4),

    slot(F::materiau),
    slot(F::jauge),
    slot(F::propulsion),
    slot(F::dateConstruction),
    slot(F::lieuConstruction),
    slot(F::dateNaufrage),
    slot(F::causeNaufrage),
    slot(F::pointHaut),
    slot(F::pointBas),
    slot(F::orientationSwitch).since(3),
    slot(F::orientation),
    slot(F::inclinaison),
    slot(F::dateVisite),
    slot(F::aVisiter).since(2),

    slot(F::lieu),
    slot(F::site),
    slot(F::pays),
    slot(F::gps),
    slot(F::gpsSystem),
    slot(F::acces),
    slot(F::accesBord),
    slot(F::localisation),
    slot(F::interet),
    slot(F::technicite),
    slot(F::relevement1),
    slot(F::relevement2),
    slot(F::relevement3).writing(F::relevement1),
    slot(F::photo),
    slot(F::notes),

    slot(F::typeMachine).since(5),
    slot(F::puissance).since(5),
    slot(F::puissancePopUp).since(6),
    slot(F::natureFond).since(5),
    slot(F::nomsPrecedents).since(5),
    slot(F::armateur).since(5),
    slot(F::ports).since(5),
    slot(F::capitaine).since(5),
    slot(F::equipage).since(5),
    slot(F::chargement).since(5),
    slot(F::provenance).since(5),
    slot(F::destination).since(5),
    slot(F::miseAJour).since(5),
});

/// What older archives do not have is empty, not absent.
void emptyHistory(Epaves& wreck, qint32 version) {
    if (version >= 5) return;
    const QString empty = QLatin1String("");
    for (const auto set :
         {&Epaves::setTypeMachine, &Epaves::setPuissance, &Epaves::setNatureFond, &Epaves::setNomsPrecedents,
          &Epaves::setArmateur, &Epaves::setPorts, &Epaves::setCapitaine, &Epaves::setEquipage,
          &Epaves::setChargement, &Epaves::setProvenance, &Epaves::setDestination})
        (wreck.*set)(empty);
}

}  // namespace

const RecordClass<Epaves>& epavesClass() {
    static constexpr RecordClass<Epaves> cls{Epaves::className, 6, F::all, epavesSlots, emptyHistory};
    return cls;
}

}  // namespace sargan
