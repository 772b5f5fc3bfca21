#include "registers/AdressesEts.h"

#include "registers/OpeningHours.h"
#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"

namespace sargan {

using namespace Qt::StringLiterals;
using namespace registerlayout;
using namespace registerwords;

namespace {

using F = EntreprisesFields;

// --- Form ---

std::vector<RegisterControl<Entreprises>> controls() {
    using enum ControlKind;
    std::vector<RegisterControl<Entreprises>> list{
        {{.name = "entrepriseField", .kind = Text}, &F::entreprise},
        {{.name = "activiteField", .kind = Combo, .pickList = "activite"}, &F::activite},
        {{.name = "adresseField", .kind = Text}, &F::adresse},
        {{.name = "codePostalField", .kind = Text}, &F::codePostal},
        {{.name = "villeField", .kind = Text}, &F::ville},
        {{.name = "paysField", .kind = Text}, &F::pays},
        {{.name = "telephoneField", .kind = Text}, &F::telephone},
        {{.name = "faxField", .kind = Text}, &F::fax},
        {{.name = "emailField", .kind = Text}, &F::email},
        {{.name = "urlField", .kind = Text}, &F::url},
        {{.name = "cotationSlider", .kind = Slider, .maximum = 5}, &F::cotation},
        {{.name = "cotationInfoField", .kind = Caption}},
        {{.name = "miseAJourField", .kind = Date}, &F::miseAJour},
        {{.name = "remarquesField", .kind = Area}, &F::remarques},
    };
    openinghours::addControls<F>(list);
    return list;
}

/// Every time is a dash, but on Sundays a firm is closed.
std::vector<BlankValue> blankValues() {
    std::vector<BlankValue> values{blank::now("miseAJourField")};
    for (const openinghours::Day& day : std::span(openinghours::week).first(6))
        for (const char* time : day.controls) values.push_back(blank::text(time, "-"));
    for (const char* time : openinghours::week[6].controls)
        values.push_back(blank::words(time, {"Main", "Closed"}));
    return values;
}

void refreshForm(RegisterDocument<Entreprises>& document) {
    Form& form = document.form();
    form.setText({"cotationInfoField"}, ratingInfo(form.tag({"cotationSlider"})));
}

LayoutPane addressPage() {
    const LayoutSection firm{
        ui("Firm"),
        {row({field("entrepriseField", ui("Name"))}), row({field("activiteField", ui("Activity"))})}};
    const LayoutSection address{
        ui("Address"),
        {row({field("adresseField", ui("Street"))}),
         row({sized("codePostalField", ui("Postal code"), 8), field("villeField", ui("Town"))}),
         row({field("paysField", ui("Country"))})}};
    const LayoutSection contact{
        ui("Contact"),
        {row({field("telephoneField", ui("Phone"))}), row({field("faxField", ui("Fax"))}),
         row({field("emailField", ui("E-mail"))}), row({field("urlField", ui("Web site"))})},
        true};
    return {"addressPage", ui("Address"), "general", {firm, address, contact}};
}

LayoutPane notesPage() {
    const LayoutSection rating{
        ui("Rating"), {row({field("cotationSlider", ui("Rating")), sized("cotationInfoField", none, 3)})}};
    const LayoutSection card{
        ui("Card"), {row({withButton("miseAJourField", ui("Updated on"), "resetDateToNow", ui("Today"))})}};
    const LayoutSection notes{ui("Remarks"), {row({field("remarquesField")})}, true};
    return {"notesPage", ui("Rating & remarks"), "notes", {rating, card, notes}};
}

// --- Table ---

/// How long nobody has looked at a card. At exactly one and two years the colour says nothing.
QColor byAge(const Entreprises& firm, const Desk& desk) {
    constexpr qint64 year = 31557600;
    const double now = Moment::fromDateTime(desk.clock.now()).seconds();
    const double updated = firm.miseAJour().isPresent() ? firm.miseAJour().seconds() : now;
    const double age = std::trunc(now - updated);
    if (age < year) return systemcolor::gray;
    if (age > 2 * year) return alarmRed;
    return age > year && age < 2 * year ? systemcolor::orange : QColor();
}

std::vector<RegisterColumn<Entreprises>> columns() {
    return {
        {&F::entreprise, ui("Name"), 18, toLeft, nullptr, registercolor::brown},
        {&F::activite, ui("Activity"), 14},
        {&F::ville, ui("Town"), 13},
        {&F::pays, ui("Country"), 11},
        {&F::telephone, ui("Phone"), 14},
        {&F::email, ui("E-mail"), 18},
        {&F::cotation, ui("Rating"), 8, toLeft,
         [](const Entreprises& firm, const Desk& desk) { return stars(firm.cotation(), desk.strings); },
         [](const Entreprises& firm, const Desk&) {
             return firm.cotation() != 0 ? systemcolor::brown : systemcolor::gray;
         }},
        {&F::miseAJour, ui("Updated on"), 10, centred, nullptr, byAge},
    };
}

// --- Synthesis card ---

void writeSchedules(CardWriter& card, const Entreprises& firm) {
    static constexpr Message<> days[] = {{"Entreprises", "Monday"},    {"Entreprises", "Tuesday"},
                                         {"Entreprises", "Wednesday"}, {"Entreprises", "Thursday"},
                                         {"Entreprises", "Friday"},    {"Entreprises", "Saturday"},
                                         {"Entreprises", "Sunday"}};
    card.heading({"Entreprises", "Schedules"});
    for (std::size_t day = 0; day < std::size(days); ++day)
        card.line(days[day], openinghours::times<F>(firm, day));
}

void writeCard(CardWriter& card, const Entreprises& firm, qsizetype) {
    card.title({"Entreprises", "Inventory"});
    card.rule("\r------------------------------\r");
    card.line({"Entreprises", "Name"}, firm.entreprise());
    card.line({"Entreprises", "Address"},
              QStringList{firm.adresse(), firm.codePostal(), firm.ville(), firm.pays()}.join(u' '));
    card.line({"Entreprises", "Phone"}, firm.telephone());
    card.line({"Entreprises", "Fax"}, firm.fax());
    card.line({"Entreprises", "E-mail"}, firm.email());
    card.line({"Entreprises", "URL"}, firm.url());
    card.line({"Entreprises", "Activity"}, firm.activite());
    writeSchedules(card, firm);
    card.line({"Entreprises", "Remarks"}, firm.remarques());
    card.line({"Entreprises", "Update"}, cardDate(firm.miseAJour()));
    card.closing();
}

}  // namespace

const WindowLayout& adressesEtsLayout() {
    static const WindowLayout layout{
        "firmEditWindow",
        ui("Firm"),
        {addressPage(),
         {"hoursPage", ui("Opening hours"), "history", {openinghours::section()}},
         notesPage()}};
    return layout;
}

const RegisterDescription<Entreprises>& adressesEts() {
    static const RegisterDescription<Entreprises> description{
        .design =
            {
                .nibName = "Entreprises",
                .operations = {.add = "addFirm",
                               .update = "updateFirm",
                               .erase = "deleteFirm",
                               .previous = "prevFirm",
                               .next = "nextFirm",
                               .edit = "editFirmWindow",
                               .goPage = "goFirmView_",
                               .synthesis = "inventaireWindow",
                               .print = "printFirmsList"},
                .listBar = {"firmTableViewWindowToolbar", {"imprimer", "addFirm", "deleteFirm", "synthese"}},
                .editBar = {"firmEditWindowToolbar", {"addFirm", "blankFields", "synthese"}},
                .needRecords = {"imprimer", "insertFirm", "updateFirm", "deleteFirm", "synthese"},
                .count = {oneCard, cards},
                .checksType = false,
                .layout = adressesEtsLayout,
                .blank = blankValues(),
                .blankClearsSelection = false,
                .nowControl = "miseAJourField",
            },
        .recordClass = entreprisesClass,
        .controls = controls(),
        .columns = columns(),
        .card = writeCard,
        .refresh = refreshForm,
    };
    return description;
}

}  // namespace sargan
