#include "registers/MaintComp.h"

#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"

namespace sargan {

using namespace Qt::StringLiterals;
using namespace registercolor;
using namespace registerwords;

namespace {

using F = CompresseurFields;

// --- Form ---

/// "-" is not measured, and so is a number whose whole part is below 0; -0.5 is a number like any other.
Float analysis(const QString& text) {
    if (text == u"-"_s) return -1;
    const double value = leadingNumber(text);
    return value <= -1 ? -1 : Float(value);
}

QString analysisText(Float value) {
    return shortest(value);
}

std::vector<RegisterControl<Compresseur>> controls() {
    using enum ControlKind;
    namespace menus = compressormenus;
    return {
        // Service
        {{.name = "marqueField", .kind = Text}, &F::marque},
        {{.name = "modeleField", .kind = Text}, &F::modele},
        {{.name = "cumulTempsField", .kind = Text}, &F::cumulTemps},
        {{.name = "dateField", .kind = Date}, &F::date},
        {{.name = "tempsField", .kind = Time}, &F::temps},
        // Operations
        {{.name = "vidangeSwitch", .kind = Switch}, &F::vidange},
        {{.name = "typeHuileMatrix", .kind = PopUp, .menu = menus::oil, .spread = true}, &F::typeHuile},
        {{.name = "filtreAirSwitch", .kind = Switch}, &F::filtreAir},
        {{.name = "operationFiltreMatrix", .kind = PopUp, .menu = menus::filterWork, .spread = true},
         &F::operationFiltre},
        {{.name = "cartoucheSwitch", .kind = Switch}, &F::cartouche},
        {{.name = "charbonSwitch", .kind = Switch}, &F::charbon},
        {{.name = "alumineSwitch", .kind = Switch}, &F::alumine},
        {{.name = "tamisSwitch", .kind = Switch}, &F::tamis},
        {{.name = "depoussierageSwitch", .kind = Switch}, &F::depoussierage},
        {{.name = "controlesSwitch", .kind = Switch}, &F::controles},
        {{.name = "soupapesSwitch", .kind = Switch}, &F::soupapes},
        {{.name = "intSoupapeMatrix", .kind = PopUp, .menu = menus::valveWork, .spread = true},
         &F::intSoupape},
        // Analyses and remarks
        {{.name = "anHuileField", .kind = Number}, &F::anHuile, analysis, analysisText},
        {{.name = "anCO2Field", .kind = Number}, &F::anCO2, analysis, analysisText},
        {{.name = "anCO2UnitPopUp", .kind = PopUp, .menu = menus::gasUnit}, &F::anCO2Unit},
        {{.name = "anCOField", .kind = Number}, &F::anCO, analysis, analysisText},
        {{.name = "anCOUnitPopUp", .kind = PopUp, .menu = menus::gasUnit}, &F::anCOUnit},
        {{.name = "anH2OField", .kind = Number}, &F::anH2O, analysis, analysisText},
        {{.name = "notesField", .kind = Area}, &F::notes},
    };
}

std::vector<BlankValue> blankValues() {
    return {blank::now("dateField"), blank::text("anHuileField", "-1"), blank::text("anCO2Field", "-1"),
            blank::text("anCOField", "-1"), blank::text("anH2OField", "-1")};
}

void enableWhile(Form& form, ControlName control, bool enabled) {
    form.setEnabled(form[control], enabled);
}

/// How a piece of work was done can be said only once it was done; a whole new cartridge has all its parts
/// new.
void refreshForm(RegisterDocument<Compresseur>& document) {
    Form& form = document.form();
    enableWhile(form, {"typeHuileMatrix"}, form.tag({"vidangeSwitch"}) != 0);
    enableWhile(form, {"operationFiltreMatrix"}, form.tag({"filtreAirSwitch"}) != 0);
    enableWhile(form, {"intSoupapeMatrix"}, form.tag({"soupapesSwitch"}) != 0);
    for (const ControlName part : {ControlName{"charbonSwitch"}, {"alumineSwitch"}, {"tamisSwitch"}})
        enableWhile(form, part, form.tag({"cartoucheSwitch"}) == 0);
}

// --- Table ---

QString filterWord(const Compresseur& service, const Desk& desk) {
    if (service.filtreAir() != 1) return {};
    return service.operationFiltre() == 1 ? desk.strings.text({"Compresseur", "TableView replacement", "N/A"})
                                          : desk.strings.text({"Compresseur", "TableView cleaning", "N/A"});
}

QString valveWord(const Compresseur& service, const Desk& desk) {
    if (service.soupapes() != 1) return {};
    return service.intSoupape() != 0 ? desk.strings.text({"Compresseur", "TableView retarage"})
                                     : desk.strings.text({"Compresseur", "TableView verification"});
}

QString measured(Float value, const char* unit) {
    return value == -1 ? u"-"_s : withUnit(value, unit);
}

QString gas(Float value, Int unit) {
    if (unit == 0) return measured(value, "ml/m³");
    if (unit == 1) return measured(value, "ppm");
    return value == -1 ? u"-"_s : shortest(value);
}

template <auto& field>
QString checkOf(const Compresseur& service, const Desk& desk) {
    return check(service.*std::get<Int Compresseur::*>(field.member), desk.strings);
}

std::vector<RegisterColumn<Compresseur>> columns() {
    return {
        {&F::date, ui("Date"), 10, centred, nullptr, brown},
        {&F::marque, ui("Make"), 12},
        {&F::modele, ui("Model"), 12},
        {&F::temps, ui("Time run"), 7, centred,
         [](const Compresseur& service, const Desk&) { return cardTime(service.temps()); }},
        {&F::cumulTemps, ui("Hours"), 7, toRight},
        {&F::vidange, ui("Oil"), 4, centred, checkOf<F::vidange>, green},
        {&F::filtreAir, ui("Air filter"), 12, toLeft, filterWord},
        {&F::cartouche, ui("Cartridge"), 8, centred, checkOf<F::cartouche>, green},
        {&F::charbon, ui("Charcoal"), 8, centred, checkOf<F::charbon>, green},
        {&F::alumine, ui("Alumina"), 7, centred, checkOf<F::alumine>, green},
        {&F::tamis, ui("Sieve"), 5, centred, checkOf<F::tamis>, green},
        {&F::depoussierage, ui("Dusting"), 7, centred, checkOf<F::depoussierage>, green},
        {&F::controles, ui("Checks"), 7, centred, checkOf<F::controles>, green},
        {&F::soupapes, ui("Valves"), 12, toLeft, valveWord},
        {&F::anHuile, ui("Oil in air"), 11, toRight,
         [](const Compresseur& service, const Desk&) { return measured(service.anHuile(), "mg/m³"); }},
        {&F::anCO2, ui("CO2"), 11, toRight,
         [](const Compresseur& service, const Desk&) { return gas(service.anCO2(), service.anCO2Unit()); }},
        {&F::anCO, ui("CO"), 11, toRight,
         [](const Compresseur& service, const Desk&) { return gas(service.anCO(), service.anCOUnit()); }},
        {&F::anH2O, ui("Water"), 11, toRight,
         [](const Compresseur& service, const Desk&) { return measured(service.anH2O(), "ml/m³"); }},
    };
}

// --- Synthesis card: only what was done and measured ---

void writeOperations(CardWriter& card, const Compresseur& service) {
    const auto done = [&](Int value, const Message<>& words) {
        if (value == 1) card.line(words);
    };
    card.heading({"Compresseur", "Operations"});
    if (service.vidange() == 1)
        service.typeHuile() == 1 ? card.line({"Compresseur", "Vidange synthesis"})
                                 : card.line({"Compresseur", "Vidange mineral"});
    if (service.filtreAir() == 1)
        service.operationFiltre() == 1 ? card.line({"Compresseur", "Filter replacement"})
                                       : card.line({"Compresseur", "Filter cleaning"});
    done(service.cartouche(), {"Compresseur", "Cardridge"});
    done(service.charbon(), {"Compresseur", "Charcoal"});
    done(service.alumine(), {"Compresseur", "Alumin"});
    done(service.tamis(), {"Compresseur", "Molecular mesh"});
    done(service.depoussierage(), {"Compresseur", "Cleaning"});
    done(service.controles(), {"Compresseur", "Controls"});
    if (service.soupapes() == 1)
        card.line({"Compresseur", "Valves"}, service.intSoupape() != 0
                                                 ? card.strings().text({"Compresseur", "Retarage"})
                                                 : card.strings().text({"Compresseur", "Verification"}));
}

void writeAnalyses(CardWriter& card, const Compresseur& service) {
    const auto unit = [&](Int code) {
        return code == 1 ? card.strings().text({"Compresseur", "ppm", "ppm"})
                         : card.strings().text({"Compresseur", "ml/m3", "ml/m3"});
    };
    const auto line = [&](const Message<>& label, Float value, const QString& unitWord) {
        if (value != -1) card.line(label, shortest(value) + u' ' + unitWord);
    };
    card.heading({"Compresseur", "Analyzes"});
    line({"Compresseur", "Analyse huile"}, service.anHuile(),
         card.strings().text({"Compresseur", "mg/m3", "mg/m3"}));
    line({"Compresseur", "Analyse CO2"}, service.anCO2(), unit(service.anCO2Unit()));
    line({"Compresseur", "Analyse CO"}, service.anCO(), unit(service.anCOUnit()));
    line({"Compresseur", "Analyse H2O"}, service.anH2O(), unit(0));
}

void writeCard(CardWriter& card, const Compresseur& service, qsizetype row) {
    card.title({"Compresseur", "Inventory"});
    card.line(QString());
    card.line({"Compresseur", "Trade mark"}, service.marque());
    card.line({"Compresseur", "Model"}, service.modele());
    card.rule("\r\r------------------------------\r");
    card.line({"Compresseur", "Service"}, QString::number(row + 1));
    card.line({"Compresseur", "Date"}, cardDate(service.date()));
    card.line({"Compresseur", "Time"}, service.temps().local().toString(u"HH 'h' mm 'min.'"_s));
    card.line({"Compresseur", "Sum time"}, service.cumulTemps());
    writeOperations(card, service);
    writeAnalyses(card, service);
    card.line({"Compresseur", "Remarks"}, service.notes());
    card.rule("\r\r------------------------------\r");
    card.closing();
}

}  // namespace

const RegisterDescription<Compresseur>& maintComp() {
    static const RegisterDescription<Compresseur> description{
        .design =
            {
                .nibName = "Compresseur",
                .operations = {.add = "addService",
                               .update = "updateService",
                               .erase = "deleteService",
                               .previous = "prevService",
                               .next = "nextService",
                               .edit = "editCompWindow",
                               .goPage = "goCompView_",
                               .synthesis = "inventaireWindow",
                               .print = "printServicesList"},
                .listBar = {"serviceTableViewWindowToolbar",
                            {"saveDocument", "imprimer", "addService", "deleteService", "synthese"}},
                // "blankfields" is no item that there is, so this bar has no Erase button.
                .editBar = {"serviceEditWindowToolbar", {"addService", "blankfields", "synthese"}},
                .needRecords = {"imprimer", "deleteService", "synthese"},
                .count = {{"Main", "One revision", "\r\rerror ! "},
                          Message<int>{"Main", "Revisions", "\r\rerror ! "}},
                .layout = maintCompLayout,
                .blank = blankValues(),
            },
        .recordClass = compresseurClass,
        .controls = controls(),
        .columns = columns(),
        .otherColor = gray,
        .date = &F::date,
        .card = writeCard,
        .refresh = refreshForm,
    };
    return description;
}

}  // namespace sargan
