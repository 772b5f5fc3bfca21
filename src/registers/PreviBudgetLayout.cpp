#include "registers/PreviBudget.h"
#include "registers/RegisterLayout.h"

namespace sargan {

using namespace registerlayout;

namespace {

LayoutPane servicePage() {
    const LayoutSection service{
        ui("Service"),
        {row({field("prestationField", ui("Service"))}), row({field("entrepriseField", ui("Firm"))}),
         row({field("prevDepenseSwitch", ui("Expense planned"))}),
         row({withButton("miseAJourField", ui("Updated on"), "resetDateToNow", ui("Today"))})}};
    const LayoutSection rating{
        ui("Rating"),
        {row({field("qualitePrixSlider", ui("Value for money")), sized("qualitePrixInfoField", none, 14)}),
         row({field("delaiSlider", ui("Efficiency")), sized("delaiInfoField", none, 14)})}};
    const LayoutSection notes{ui("Remarks"), {row({field("notesField")})}, true};
    return {"servicePage", ui("Service"), "general", {service, rating, notes}};
}

LayoutRow supplement(const char* name, const Message<>& label, const char* quantity, const char* price) {
    return row({field(name, label), sized(quantity, ui("Quantity"), 6), sized(price, ui("at"), 8, ui("€"))});
}

LayoutPane pricesPage() {
    const LayoutSection prices{
        ui("Prices"),
        {row({sized("quantite_0Field", ui("Base price"), 6),
              sized("prixUnitaire_0Field", ui("at"), 8, ui("€"))}),
         supplement("supplement_1Field", ui("Supplement 1"), "quantite_1Field", "prixUnitaire_1Field"),
         supplement("supplement_2Field", ui("Supplement 2"), "quantite_2Field", "prixUnitaire_2Field"),
         supplement("supplement_3Field", ui("Supplement 3"), "quantite_3Field", "prixUnitaire_3Field"),
         supplement("supplement_4Field", ui("Supplement 4"), "quantite_4Field", "prixUnitaire_4Field"),
         row({sized("totalField", ui("Total"), 12, ui("€"))})}};
    // Kept with the card, but no part of the total.
    const LayoutSection further{ui("Not in the total"),
                                {row({sized("quantite_5Field", ui("Further price"), 6),
                                      sized("prixUnitaire_5Field", ui("at"), 8, ui("€"))})}};
    return {"pricesPage", ui("Prices"), "prices", {prices, further}};
}

LayoutRow prepaid(const Message<>& label, const char* units, const char* price, const char* perUnit) {
    return row({sized(units, label, 6), sized(price, ui("units for"), 8, ui("€")), field(perUnit)});
}

LayoutPane cardsPage() {
    const LayoutSection prepaidCards{
        ui("Prepaid cards"),
        {row({field("prixDegressifSwitch", ui("There are prepaid cards"))}),
         prepaid(ui("Card 1"), "unitesCarte_1Field", "prixCarte_1Field", "prixUnite_1Field"),
         prepaid(ui("Card 2"), "unitesCarte_2Field", "prixCarte_2Field", "prixUnite_2Field"),
         prepaid(ui("Card 3"), "unitesCarte_3Field", "prixCarte_3Field", "prixUnite_3Field"),
         prepaid(ui("Card 4"), "unitesCarte_4Field", "prixCarte_4Field", "prixUnite_4Field")}};
    return {"cardsPage", ui("Prepaid cards"), "card", {prepaidCards}};
}

}  // namespace

const WindowLayout& previBudgetLayout() {
    static const WindowLayout layout{
        "budgetEditWindow", ui("Service and prices"), {servicePage(), pricesPage(), cardsPage()}};
    return layout;
}

}  // namespace sargan
