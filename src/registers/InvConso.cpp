#include "registers/InvConso.h"

#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"
#include "registers/RegisterLayout.h"

namespace sargan {

using namespace registerlayout;
using namespace registerwords;

namespace {

using F = ConsommablesFields;

// --- Form ---

std::vector<RegisterControl<Consommables>> controls() {
    using enum ControlKind;
    return {
        {{.name = "referenceField", .kind = Text}, &F::reference},
        {{.name = "marqueField", .kind = Text}, &F::marque},
        {{.name = "utilisationField", .kind = Text}, &F::utilisation},
        {{.name = "stockField", .kind = Number}, &F::stock},
        {{.name = "reserveField", .kind = Number}, &F::reserve},
        {{.name = "reserveMaxField", .kind = Number}, &F::reserveMax},
        {{.name = "rangementField", .kind = Text}, &F::rangement},
        {{.name = "noInventaireSwitch", .kind = Switch}, &F::noInventaire},
        {{.name = "dateInventaireField", .kind = Date}, &F::dateInventaire},
        {{.name = "notesField", .kind = Area}, &F::notes},
    };
}

LayoutPane partPage() {
    const LayoutSection part{
        ui("Part"),
        {row({field("referenceField", ui("Reference"))}), row({field("marqueField", ui("Make"))}),
         row({field("utilisationField", ui("Used for"))})}};
    const LayoutSection stock{
        ui("Stock"),
        {row({sized("stockField", ui("In stock"), 8)}), row({sized("reserveField", ui("Reserve"), 8)}),
         row({sized("reserveMaxField", ui("Full stock"), 8)}), row({field("rangementField", ui("Kept at"))})},
        true};
    return {"partPage", ui("Part"), "general", {part, stock}};
}

LayoutPane inventoryPage() {
    const LayoutSection inventory{
        ui("Inventory"),
        {row({field("noInventaireSwitch", ui("Not counted in inventories"))}),
         row({withButton("dateInventaireField", ui("Counted on"), "resetDateToNow", ui("Today"))})}};
    const LayoutSection notes{ui("Remarks"), {row({field("notesField")})}, true};
    return {"inventoryPage", ui("Inventory & remarks"), "notes", {inventory, notes}};
}

void refreshForm(RegisterDocument<Consommables>& document) {
    Form& form = document.form();
    form.setHidden(form[ControlName{"dateInventaireField"}], form.tag({"noInventaireSwitch"}) != 0);
}

void leaveProgress(Consommables& part) {
    part.setProgress(7.4F);
}

// --- Table ---

std::vector<RegisterColumn<Consommables>> columns() {
    return {
        {&F::reference, ui("Reference"), 14, toLeft, nullptr,
         [](const Consommables& part, const Desk&) {
             if (part.stock() < part.reserve()) return alarmRed;
             return part.stock() == part.reserve() ? systemcolor::brown : systemcolor::gray;
         }},
        {&F::marque, ui("Make"), 12},
        {&F::utilisation, ui("Used for"), 18},
        {&F::stock, ui("In stock"), 8, toRight, nullptr,
         [](const Consommables& part, const Desk&) {
             return part.stock() < part.reserve() ? alarmRed : systemcolor::gray;
         }},
        {&F::reserve, ui("Reserve"), 8, toRight},
        {&F::reserveMax, ui("Full stock"), 8, toRight},
        {.field = &F::progress,
         .title = ui("Level"),
         .characters = 11,
         .alignment = toRight,
         .percent =
             [](const Consommables& part, const Desk&) {
                 const double most = part.reserveMax() == 0 ? 1 : double(part.reserveMax());
                 return double(part.stock()) * 100 / most;
             }},
        {&F::rangement, ui("Kept at"), 12},
        {&F::dateInventaire, ui("Counted on"), 10, centred,
         [](const Consommables& part, const Desk&) {
             return part.noInventaire() == 1 ? QString() : cardDate(part.dateInventaire());
         }},
    };
}

// --- Synthesis card ---

void writeCard(CardWriter& card, const Consommables& part, qsizetype) {
    card.title({"Consommables", "Inventory"});
    card.rule("\r\r--------------------");
    card.line(QString());
    card.line({"Consommables", "Reference"}, part.reference());
    card.line({"Consommables", "Trade mark"}, part.marque());
    card.line({"Consommables", "Use"}, part.utilisation());
    card.line({"Consommables", "Quantity"}, shortest(part.stock()));
    card.line({"Consommables", "Location"}, part.rangement());
    card.line({"Consommables", "Remarks"}, part.notes());
    card.closing();
}

}  // namespace

const WindowLayout& invConsoLayout() {
    static const WindowLayout layout{"partEditWindow", ui("Spare part"), {partPage(), inventoryPage()}};
    return layout;
}

const RegisterDescription<Consommables>& invConso() {
    static const RegisterDescription<Consommables> description{
        .design =
            {
                .nibName = "Consommables",
                .operations = {.add = "addPart",
                               .update = "updatePart",
                               .erase = "deletePart",
                               .previous = "prevPart",
                               .next = "nextPart",
                               .edit = "editPartWindow",
                               .goPage = "goPartView_",
                               .synthesis = "inventaireWindow",
                               .print = "printPartsList"},
                // Without a save item: this list never had one.
                .listBar = {"consommablesTableViewWindowToolbar",
                            {"imprimer", "addPart", "deletePart", "synthese"}},
                .editBar = {"consommablesEditWindowToolbar", {"addPart", "blankFields", "synthese"}},
                .needRecords = {"imprimer", "deletePart", "synthese"},
                .count = {oneCard, cards},
                .layout = invConsoLayout,
                .blank = {blank::tag("noInventaireSwitch", 1), blank::now("dateInventaireField")},
                .nowControl = "dateInventaireField",
            },
        .recordClass = consommablesClass,
        .controls = controls(),
        .columns = columns(),
        .card = writeCard,
        .refresh = refreshForm,
        .built = leaveProgress,
    };
    return description;
}

}  // namespace sargan
