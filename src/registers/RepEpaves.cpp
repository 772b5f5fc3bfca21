#include "registers/RepEpaves.h"

#include "registers/RegisterDocument.h"

namespace sargan {

using namespace Qt::StringLiterals;
using namespace registerwords;

namespace {

using F = EpavesFields;

// --- Form ---

constexpr ControlName orientationSwitch{"orientationSwitch"};
constexpr ControlName orientationField{"orientationField"};
constexpr ControlName orientationSlider{"orientationSlider"};
constexpr ControlName toVisit{"aVisiterSwitch"};
constexpr ControlName visitDate{"dateVisiteField"};
constexpr ControlName interest{"interetSlider"};
constexpr ControlName interestInfo{"interetInfoField"};
constexpr ControlName technicality{"techniciteSlider"};
constexpr ControlName technicalityInfo{"techniciteInfoField"};

std::vector<RegisterControl<Epaves>> controls() {
    using enum ControlKind;
    return {
        // Wreck
        {{.name = "nomField", .kind = Text}, &F::nom},
        {{.name = "typeField", .kind = Combo, .pickList = "type epave"}, &F::type},
        {{.name = "immatriculationField", .kind = Text}, &F::immatriculation},
        {{.name = "longueurField", .kind = Number}, &F::longueur},
        {{.name = "largeurField", .kind = Number}, &F::largeur},
        {{.name = "jaugeField", .kind = Number}, &F::jauge},
        {{.name = "materiauPopUp", .kind = PopUp, .menu = wreckmenus::material}, &F::materiau},
        {{.name = "propulsionPopUp", .kind = PopUp, .menu = wreckmenus::propulsion}, &F::propulsion},
        {{.name = "typeMachineField", .kind = Text}, &F::typeMachine},
        {{.name = "puissanceField", .kind = Text}, &F::puissance},
        {{.name = "puissancePopUp", .kind = PopUp, .menu = wreckmenus::powerUnit}, &F::puissancePopUp},
        // Position on the bottom
        {{.name = "pointHautField", .kind = Number}, &F::pointHaut, orMinusOne, orDash},
        {{.name = "pointBasField", .kind = Number}, &F::pointBas, orMinusOne, orDash},
        {{.name = "natureFondField", .kind = Text}, &F::natureFond},
        {{.name = "orientationSwitch", .kind = Switch}, &F::orientationSwitch},
        {{.name = "orientationField", .kind = Number}, &F::orientation},
        {{.name = "orientationSlider", .kind = Slider, .maximum = 360}},
        {{.name = "inclinaisonPopUp", .kind = PopUp, .menu = wreckmenus::heel}, &F::inclinaison},
        // History
        {{.name = "nomsPrecedentsField", .kind = Text}, &F::nomsPrecedents},
        {{.name = "nationaliteField", .kind = Text}, &F::nationalite},
        {{.name = "armateurField", .kind = Text}, &F::armateur},
        {{.name = "dateConstructionField", .kind = Text}, &F::dateConstruction},
        {{.name = "lieuConstructionField", .kind = Text}, &F::lieuConstruction},
        {{.name = "portsField", .kind = Text}, &F::ports},
        {{.name = "capitaineField", .kind = Text}, &F::capitaine},
        {{.name = "equipageField", .kind = Text}, &F::equipage},
        {{.name = "chargementField", .kind = Text}, &F::chargement},
        {{.name = "provenanceField", .kind = Text}, &F::provenance},
        {{.name = "destinationField", .kind = Text}, &F::destination},
        {{.name = "dateNaufrageField", .kind = Text}, &F::dateNaufrage},
        {{.name = "causeNaufrageField", .kind = Combo, .pickList = "cause naufrage"}, &F::causeNaufrage},
        {{.name = "miseAJourField", .kind = Date}, &F::miseAJour},
        // Place
        {{.name = "lieuField", .kind = Text}, &F::lieu},
        {{.name = "siteField", .kind = Text}, &F::site},
        {{.name = "paysField", .kind = Text}, &F::pays},
        {{.name = "gpsField", .kind = Text}, &F::gps},
        {{.name = "gpsSystemPopUp", .kind = PopUp, .menu = wreckmenus::positionSystem}, &F::gpsSystem},
        {{.name = "accesPopUp", .kind = PopUp, .menu = wreckmenus::difficulty}, &F::acces},
        {{.name = "accesBordSwitch", .kind = Switch}, &F::accesBord},
        {{.name = "localisationPopUp", .kind = PopUp, .menu = wreckmenus::difficulty}, &F::localisation},
        {{.name = "interetSlider", .kind = Slider, .maximum = 5}, &F::interet},
        {{.name = "interetInfoField", .kind = Caption}},
        {{.name = "techniciteSlider", .kind = Slider, .maximum = 5}, &F::technicite},
        {{.name = "techniciteInfoField", .kind = Caption}},
        {{.name = "relevement1Field", .kind = Text}, &F::relevement1},
        {{.name = "relevement2Field", .kind = Text}, &F::relevement2},
        {{.name = "relevement3Field", .kind = Text}, &F::relevement3},
        {{.name = "aVisiterSwitch", .kind = Switch}, &F::aVisiter},
        {{.name = "dateVisiteField", .kind = Date}, &F::dateVisite},
        // Photograph and remarks
        {{.name = "photoWell", .kind = Image}, &F::photo},
        {{.name = "notesField", .kind = Area}, &F::notes},
    };
}

std::vector<BlankValue> blankValues() {
    return {
        blank::text("dateConstructionField", "--/--/----"),
        blank::text("dateNaufrageField", "--/--/----"),
        blank::text("longueurField", "-1"),
        blank::text("largeurField", "-1"),
        blank::text("orientationField", "0"),
        blank::now("miseAJourField"),
        blank::now("dateVisiteField"),
        blank::words("gpsField", {"Carnet", "GPS template"}),
        // What a person has typed of master and cargo is meant for the next wreck too.
        blank::kept("capitaineField"),
        blank::kept("chargementField"),
    };
}

void refreshForm(RegisterDocument<Epaves>& document) {
    Form& form = document.form();
    const bool hasOrientation = form.isOn(form[orientationSwitch]);
    form.setEnabled(form[orientationSlider], hasOrientation);
    form.setEnabled(form[orientationField], hasOrientation);
    form.setTag(orientationSlider, form.integer(orientationField));
    form.setHidden(form[visitDate], form.isOn(form[toVisit]));
    form.setText(interestInfo, ratingInfo(form.tag(interest)));
    form.setText(technicalityInfo, ratingInfo(form.tag(technicality)));
}

/// The slider's heading goes into the field; the field is what the record keeps.
void takeOrientation(RegisterDocument<Epaves>& document, int control) {
    Form& form = document.form();
    if (control == form[orientationSlider]) form.setInteger(orientationField, form.tag(orientationSlider));
}

// --- Table ---

QString propulsionWord(const Epaves& wreck, const Desk& desk) {
    static constexpr Message<> words[] = {
        {"Epaves", "TableView essence"},    {"Epaves", "TableView diesel"},
        {"Epaves", "TableView kerosene"},   {"Epaves", "TableView nucleaire"},
        {"Epaves", "TableView rames"},      {"Epaves", "TableView vapeur"},
        {"Epaves", "TableView voile"},      {"Epaves", "TableView remorque"},
        {"Epaves", "TableView diesel elec"}};
    const Int code = wreck.propulsion();
    if (code < 1 || code > 9) return desk.strings.text({"Epaves", "N/A", "N/A"});
    return desk.strings.text(words[code - 1]);
}

QString length(const Epaves& wreck, const Desk&) {
    const Float metres = wreck.longueur();
    return std::trunc(metres) >= 1 ? formatted(u"%.1f m", double(metres)) : u"-"_s;
}

/// A shallowest point of 0 m is a depth, a deepest point of 0 is none: the two start at different numbers.
QString depth(Float depth, int from) {
    if (std::trunc(depth) >= from) return withUnit(depth, "m");
    return depth == -1 ? u"-"_s : shortest(depth);
}

std::vector<RegisterColumn<Epaves>> columns() {
    return {
        {&F::nom, ui("Name"), 15, toLeft, nullptr,
         [](const Epaves& wreck, const Desk&) {
             return wreck.aVisiter() == 1 ? alarmRed : systemcolor::brown;
         }},
        {&F::type, ui("Kind of vessel"), 11},
        {&F::lieu, ui("Place"), 11},
        {&F::pays, ui("Country"), 8},
        {&F::longueur, ui("Length"), 7, toRight, length},
        {&F::pointHaut, ui("Top"), 6, toRight,
         [](const Epaves& wreck, const Desk&) { return depth(wreck.pointHaut(), 0); }},
        {&F::pointBas, ui("Bottom"), 6, toRight,
         [](const Epaves& wreck, const Desk&) { return depth(wreck.pointBas(), 1); }},
        {&F::propulsion, ui("Propulsion"), 12, toLeft, propulsionWord},
        {&F::dateNaufrage, ui("Sunk"), 9, centred},
        // The colour goes by the difficulty, as divers are used to it.
        {&F::interet, ui("Interest"), 9, toLeft,
         [](const Epaves& wreck, const Desk& desk) { return stars(wreck.interet(), desk.strings); },
         [](const Epaves& wreck, const Desk&) {
             return wreck.technicite() != 0 ? systemcolor::brown : systemcolor::gray;
         }},
        {&F::technicite, ui("Difficulty"), 9, toLeft,
         [](const Epaves& wreck, const Desk& desk) { return stars(wreck.technicite(), desk.strings); },
         [](const Epaves& wreck, const Desk&) {
             switch (wreck.technicite()) {
                 case 1:
                     return systemcolor::green;
                 case 2:
                     return systemcolor::blue;
                 case 3:
                     return systemcolor::red;
                 case 4:
                     return systemcolor::purple;
                 default:
                     return systemcolor::gray;
             }
         }},
    };
}

}  // namespace

const RegisterDescription<Epaves>& repEpaves() {
    static const RegisterDescription<Epaves> description{
        .design =
            {
                .nibName = "Epaves",
                .operations = {.add = "addWreck",
                               .update = "updateWreck",
                               .erase = "deleteWreck",
                               .previous = "prevWreck",
                               .next = "nextWreck",
                               .edit = "editWreckWindow",
                               .goPage = "goWreckView_",
                               .synthesis = "repertoireEpavesWindow",
                               .print = "printWrecksList"},
                .listBar = {"wreckTableViewWindowToolbar",
                            {"saveDocument", "imprimer", "addWreck", "deleteWreck", "synthese"}},
                .editBar = {"wreckEditWindowToolbar", {"addWreck", "blankFields", "synthese"}},
                .needRecords = {"deleteWreck", "synthese"},
                .needPickList = "epaves",  // the divers' wrecks, not the ones in this register
                .count = {{"Epaves", "One card", "\r\rerror ! "},
                          Message<int>{"Epaves", "Cards", "\r\rerror ! "}},
                .layout = repEpavesLayout,
                .blank = blankValues(),
                .blankFocus = "notesField",
                .blankClearsSelection = false,
                .nowControl = "miseAJourField",
            },
        .recordClass = epavesClass,
        .controls = controls(),
        .columns = columns(),
        .card = writeWreckCard,
        .refresh = refreshForm,
        .edited = takeOrientation,
    };
    return description;
}

}  // namespace sargan
