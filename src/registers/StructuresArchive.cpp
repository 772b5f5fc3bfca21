#include "registers/Structures.h"

namespace sargan {

namespace {

using F = StructuresFields;

// The order is the file format; every version has it. The web address stands before the e-mail address.
constexpr auto structuresSlots = std::to_array<Slot<Structures>>({
    slot(F::nom),
    slot(F::type),
    slot(F::affiliation),
    slot(F::gerant),
    slot(F::adresse),
    slot(F::codePostal),
    slot(F::ville),
    slot(F::pays),
    slot(F::telephone),
    slot(F::portable),
    slot(F::fax),
    slot(F::url),
    slot(F::email),
    slot(F::cotation),
    slot(F::miseAJour),

    slot(F::plongee_1),
    slot(F::plongee_2),
    slot(F::plongee_3),
    slot(F::plongee_4),
    slot(F::plongee_5),
    slot(F::bapteme),
    slot(F::prix_1),
    slot(F::prix_2),
    slot(F::prix_3),
    slot(F::prix_4),
    slot(F::prix_5),
    slot(F::formation_1),
    slot(F::formation_2),
    slot(F::formation_3),
    slot(F::formation_4),
    slot(F::formation_5),
    slot(F::formation_6),
    slot(F::prixForm_1),
    slot(F::prixForm_2),
    slot(F::prixForm_3),
    slot(F::prixForm_4),
    slot(F::prixForm_5),
    slot(F::prixForm_6),

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

    slot(F::nbPlongees),
    slot(F::remarques),
});

}  // namespace

const RecordClass<Structures>& structuresClass() {
    static constexpr RecordClass<Structures> cls{Structures::className, 0, F::all, structuresSlots};
    return cls;
}

}  // namespace sargan
