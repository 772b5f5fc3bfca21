#include "registers/Budget.h"

namespace sargan {

namespace {

using F = BudgetFields;

// The order is the file format; every version has it.
constexpr auto budgetSlots = std::to_array<Slot<Budget>>({
    slot(F::prestation),     slot(F::quantite_0),     slot(F::quantite_1),     slot(F::quantite_2),
    slot(F::quantite_3),     slot(F::quantite_4),     slot(F::quantite_5),     slot(F::prixUnitaire_0),
    slot(F::prixUnitaire_1), slot(F::prixUnitaire_2), slot(F::prixUnitaire_3), slot(F::prixUnitaire_4),
    slot(F::prixUnitaire_5), slot(F::supplement_1),   slot(F::supplement_2),   slot(F::supplement_3),
    slot(F::supplement_4),

    slot(F::prixDegressif),  slot(F::unitesCarte_1),  slot(F::unitesCarte_2),  slot(F::unitesCarte_3),
    slot(F::unitesCarte_4),  slot(F::prixCarte_1),    slot(F::prixCarte_2),    slot(F::prixCarte_3),
    slot(F::prixCarte_4),

    slot(F::prevDepense),    slot(F::entreprise),     slot(F::qualitePrix),    slot(F::delai),
    slot(F::miseAJour),      slot(F::notes),
});

}  // namespace

const RecordClass<Budget>& budgetClass() {
    static constexpr RecordClass<Budget> cls{Budget::className, 1, F::all, budgetSlots};
    return cls;
}

}  // namespace sargan
