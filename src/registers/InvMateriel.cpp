#include "registers/InvMateriel.h"

#include "registers/RegisterDocument.h"

namespace sargan {

using namespace Qt::StringLiterals;
using namespace registerwords;

namespace {

using F = MaterielFields;

// --- Form ---

constexpr ControlName cardNumber{"matosNoField"};
constexpr ControlName lastInspection{"lastRevisionField"};
constexpr ControlName nextInspection{"nextRevisionField"};
constexpr ControlName noInspection{"noInspectionSwitch"};
constexpr ControlName cylinder{"blocSwitch"};
constexpr ControlName visualInspection{"tivSwitch"};
constexpr ControlName gauge{"tempsProgress"};
constexpr ControlName gaugeText{"tempsField"};
constexpr ControlName status{"statusField"};

constexpr const char* cylinderControls[] = {"firstRequalificationDateField", "lastRequalificationField",
                                            "nextRequalificationField",      "capaciteBlocField",
                                            "pressionServiceField",          "pressionEpreuveField"};
constexpr const char* inspectorControls[] = {"noTIVField", "nomTIVField", "valveRefField"};

std::vector<RegisterControl<Materiel>> controls() {
    using enum ControlKind;
    return {
        // Item and purchase
        {{.name = "matosNoField", .kind = Text}, &F::matosNo},
        {{.name = "typeMatosField", .kind = Combo, .pickList = "type materiel"}, &F::typeMatos},
        {{.name = "marqueMatosField", .kind = Combo, .pickList = "fabricants"}, &F::marqueMatos},
        {{.name = "serieMatosField", .kind = Text}, &F::serieMatos},
        {{.name = "dateAchatField", .kind = Date}, &F::dateAchat},
        {{.name = "quantiteMatosField", .kind = Number}, &F::quantiteMatos},
        {{.name = "factureMatosSwitch", .kind = Switch}, &F::factureMatos},
        {{.name = "prixMatosField", .kind = Text}, &F::prixMatos},
        {{.name = "lieuAchatMatosField", .kind = Combo, .pickList = "magasins"}, &F::lieuAchatMatos},
        {{.name = "equipStatePopUp", .kind = PopUp, .menu = equipmentmenus::state}, &F::equipState},
        // Inspections
        {{.name = "noInspectionSwitch", .kind = Switch}, &F::noInspection},
        {{.name = "lastRevisionField", .kind = Date}, &F::lastRevision},
        {{.name = "nextRevisionField", .kind = Date}, &F::nextRevision},
        {{.name = "tempsProgress", .kind = Gauge}},
        {{.name = "tempsField", .kind = Caption}},
        {{.name = "statusField", .kind = Caption}},
        // Cylinder
        {{.name = "blocSwitch", .kind = Switch}, &F::bloc},
        {{.name = "tankMakerField", .kind = Combo, .pickList = "tankMakers"}, &F::tankMaker},
        {{.name = "capaciteBlocField", .kind = Number}, &F::capaciteBloc},
        {{.name = "pressionServiceField", .kind = Number}, &F::pressionService},
        {{.name = "pressionEpreuveField", .kind = Number}, &F::pressionEpreuve},
        {{.name = "firstRequalificationDateField", .kind = Date}, &F::firstRequalificationDate},
        {{.name = "lastRequalificationField", .kind = Date}, &F::lastRequalification},
        {{.name = "nextRequalificationField", .kind = Date}, &F::nextRequalification},
        {{.name = "tivSwitch", .kind = Switch}, &F::tiv},
        {{.name = "noTIVField", .kind = Text}, &F::noTIV},
        {{.name = "nomTIVField", .kind = Text}, &F::nomTIV},
        {{.name = "valveRefField", .kind = Text}, &F::valveRef},
        {{.name = "resultTIVPopUp", .kind = PopUp, .menu = equipmentmenus::inspectionResult}, &F::resultTIV},
        {{.name = "notesMatosField", .kind = Area}, &F::notesMatos},
    };
}

std::vector<BlankValue> blankValues() {
    return {
        blank::now("dateAchatField"),
        blank::text("quantiteMatosField", "1"),
        // The first day of 1900 stands for no inspection.
        blank::date("lastRevisionField", "1900-01-01"),
        blank::date("nextRevisionField", "1900-01-01"),
        blank::tag("noInspectionSwitch", 1),
        blank::text("capaciteBlocField", "0"),
        blank::text("pressionServiceField", "0"),
        blank::text("pressionEpreuveField", "0"),
    };
}

void numberCard(RegisterDocument<Materiel>& document) {
    document.form().setText(cardNumber, QString::number(document.count() + 1));
}

void showElapsed(RegisterDocument<Materiel>& document) {
    Form& form = document.form();
    const double elapsed = form.isOn(form[noInspection])
                               ? 0
                               : elapsedPercent(form.date(form[lastInspection]),
                                                form.date(form[nextInspection]), document.desk());
    form.setLevel(form[gauge], elapsed);
    form.setText(gaugeText, formatted(u"%.0f %%", elapsed));
    const Strings& strings = document.strings();
    if (elapsed < 100 || std::isnan(elapsed)) {
        form.setText(status, strings.text({"Materiel", "Elapsed time"}));
        return;
    }
    // The red part has one length whatever the text's is.
    constexpr qsizetype redLetters = 27;
    const QString words = strings.text({"Materiel", "Out of date", "\r\rerror ! "});
    form.setRuns(form[status],
                 {{words.left(redLetters), systemcolor::red}, {words.mid(redLetters), QColor()}});
}

void refreshForm(RegisterDocument<Materiel>& document) {
    Form& form = document.form();
    const bool isUninspected = form.isOn(form[noInspection]);
    const bool isCylinder = form.isOn(form[cylinder]);
    const bool isInspected = isCylinder && form.isOn(form[visualInspection]);
    form.setHidden(form[cylinder], isUninspected);
    form.setHidden(form[visualInspection], isUninspected || !isCylinder);
    form.setHidden(form[lastInspection], isUninspected);
    form.setHidden(form[nextInspection], isUninspected);
    for (const char* control : cylinderControls) form.setHidden(form[ControlName{control}], !isCylinder);
    for (const char* control : inspectorControls) form.setHidden(form[ControlName{control}], !isInspected);
    showElapsed(document);
}

/// What needs no inspection is no cylinder.
void dropCylinder(RegisterDocument<Materiel>& document, int) {
    Form& form = document.form();
    if (!form.isOn(form[noInspection])) return;
    form.setTag(cylinder, 0);
    form.setTag(visualInspection, 0);
}

// --- Table ---

QString stateWord(Int state, const Strings& strings, const QString& other) {
    return word(equipmentmenus::state, state, strings, other);
}

QColor stateColor(const Materiel& item, const Desk&) {
    switch (item.equipState()) {
        case 0:
            return QColor::fromRgbF(0.12F, 0.53F, 0.01F);
        case 1:
        case 6:
            return systemcolor::orange;
        case 2:
        case 5:
            return systemcolor::red;
        case 3:
        case 4:
            return systemcolor::blue;
        default:
            return {};
    }
}

QString nextInspectionText(const Materiel& item, const Desk&) {
    return item.noInspection() == 1 ? u"-"_s : cardDate(item.nextRevision());
}

std::vector<RegisterColumn<Materiel>> columns() {
    return {
        {&F::matosNo, ui("No."), 6, toRight, nullptr,
         [](const Materiel&, const Desk&) { return systemcolor::brown; }},
        {&F::typeMatos, ui("Kind"), 13},
        {&F::marqueMatos, ui("Make"), 12},
        {&F::serieMatos, ui("Serial number"), 11},
        {&F::dateAchat, ui("Bought on"), 11, centred},
        {&F::quantiteMatos, ui("Quantity"), 6, toRight},
        {&F::factureMatos, ui("Invoice"), 7, centred,
         [](const Materiel& item, const Desk& desk) { return check(item.factureMatos(), desk.strings); },
         [](const Materiel&, const Desk&) { return systemcolor::green; }},
        {&F::equipState, ui("Equipment state"), 11, toLeft,
         [](const Materiel& item, const Desk& desk) {
             return stateWord(item.equipState(), desk.strings, QString::number(item.equipState()));
         },
         stateColor},
        {&F::nextRevision, ui("Next inspection"), 12, centred, nextInspectionText},
        {.field = &F::progress,
         .title = ui("Elapsed (%)"),
         .characters = 10,
         .alignment = toRight,
         .percent =
             [](const Materiel& item, const Desk& desk) {
                 return elapsedPercent(item.lastRevision(), item.nextRevision(), desk);
             }},
    };
}

// --- Synthesis card ---

void writeInspections(CardWriter& card, const Materiel& item) {
    card.line({"Materiel", "Last inspection"}, cardDate(item.lastRevision()));
    card.line({"Materiel", "Next inspection"}, cardDate(item.nextRevision()));
    if (item.bloc() != 1) return;
    card.line({"Materiel", "Capacity"}, shortestWhole(item.capaciteBloc()));
    card.line({"Materiel", "Service pressure"}, QString::number(item.pressionService()));
    card.line({"Materiel", "Test pressure"}, QString::number(item.pressionEpreuve()));
    card.line({"Materiel", "First test pressure"}, cardDate(item.firstRequalificationDate()));
    card.line({"Materiel", "Last test pressure"}, cardDate(item.lastRequalification()));
    card.line({"Materiel", "Next test pressure"}, cardDate(item.nextRequalification()));
    if (item.tiv() != 1) return;
    card.line({"Materiel", "TIV technician"}, item.nomTIV());
    card.line({"Materiel", "TIV No"}, item.noTIV());
}

void writeCard(CardWriter& card, const Materiel& item, qsizetype) {
    const Strings& strings = card.strings();
    card.title({"Materiel", "Inventory"});
    card.rule("\r\r--------------------\r");
    card.line({"Materiel", "Card No"}, item.matosNo());
    card.line({"Materiel", "Equipment type"}, item.typeMatos());
    card.line({"Materiel", "Trade mark"}, item.marqueMatos());
    card.line({"Materiel", "Serial No"}, item.serieMatos());
    card.line({"Materiel", "Purchase date"}, cardDate(item.dateAchat()));
    card.line({"Materiel", "Purchase location"}, item.lieuAchatMatos());
    card.line({"Materiel", "Quantity"}, QString::number(item.quantiteMatos()));
    card.line({"Materiel", "Price"}, item.prixMatos());
    card.line({"Materiel", "Facture"}, yesNo(item.factureMatos(), strings));
    if (item.noInspection() == 0) writeInspections(card, item);
    card.line({"Materiel", "Equipment state"}, stateWord(item.equipState(), strings, u"N/A"_s));
    card.line({"Materiel", "Remarks"}, item.notesMatos());
    card.closing();
}

}  // namespace

const RegisterDescription<Materiel>& invMateriel() {
    static const RegisterDescription<Materiel> description{
        .design =
            {
                .nibName = "Materiel",
                .operations = {.add = "addMatos",
                               .update = "updateMatos",
                               .erase = "deleteMatos",
                               .previous = "prevEquip",
                               .next = "nextEquip",
                               .edit = "editMatosWindow",
                               .goPage = "goEquipView_",
                               .synthesis = "inventaireWindow",
                               .print = "printMatosList"},
                .listBar = {"equipTableViewWindowToolbar",
                            {"saveDocument", "imprimer", "addMatos", "deleteMatos", "synthese"}},
                .editBar = {"equipEditWindowToolbar", {"addMatos", "blankFields", "synthese"}},
                .needRecords = {"imprimer", "deleteMatos", "synthese"},
                .count = {oneCard, cards},
                .layout = invMaterielLayout,
                .blank = blankValues(),
                .blankFocus = "notesMatosField",
                .draggedRows = "materiel",
            },
        .recordClass = materielClass,
        .controls = controls(),
        .columns = columns(),
        .card = writeCard,
        .refresh = refreshForm,
        .blanked = numberCard,
        .edited = dropCylinder,
    };
    return description;
}

}  // namespace sargan
