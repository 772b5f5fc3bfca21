#include "registers/Entreprises.h"

namespace sargan {

namespace {

using F = EntreprisesFields;

// The order is the file format. The postal code was a number up to version 1.
constexpr auto entreprisesSlots = std::to_array<Slot<Entreprises>>({
    slot(F::entreprise),
    slot(F::adresse),
    oldInt(F::codePostal).until(1),
    slot(F::codePostal).since(2),
    slot(F::ville),
    slot(F::pays),
    slot(F::telephone),
    slot(F::fax),
    slot(F::email),
    slot(F::url),
    slot(F::activite),
    slot(F::miseAJour),

    slot(F::horaireLundi_1),
    slot(F::horaireLundi_2),
    slot(F::horaireLundi_3),
    slot(F::horaireLundi_4),
    slot(F::horaireMardi_1),
    slot(F::horaireMardi_2),
    slot(F::horaireMardi_3),
    slot(F::horaireMardi_4),
    slot(F::horaireMercredi_1),
    slot(F::horaireMercredi_2),
    slot(F::horaireMercredi_3),
    slot(F::horaireMercredi_4),
    slot(F::horaireJeudi_1),
    slot(F::horaireJeudi_2),
    slot(F::horaireJeudi_3),
    slot(F::horaireJeudi_4),
    slot(F::horaireVendredi_1),
    slot(F::horaireVendredi_2),
    slot(F::horaireVendredi_3),
    slot(F::horaireVendredi_4),
    slot(F::horaireSamedi_1),
    slot(F::horaireSamedi_2),
    slot(F::horaireSamedi_3),
    slot(F::horaireSamedi_4),
    slot(F::horaireDimanche_1),
    slot(F::horaireDimanche_2),
    slot(F::horaireDimanche_3),
    slot(F::horaireDimanche_4),

    slot(F::remarques),
    slot(F::cotation).since(3),
});

}  // namespace

const RecordClass<Entreprises>& entreprisesClass() {
    static constexpr RecordClass<Entreprises> cls{Entreprises::className, 3, F::all, entreprisesSlots};
    return cls;
}

}  // namespace sargan
