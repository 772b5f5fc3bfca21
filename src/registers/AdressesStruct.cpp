#include "registers/AdressesStruct.h"

#include "registers/OpeningHours.h"
#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"

namespace sargan {

using namespace Qt::StringLiterals;
using namespace registerwords;

namespace {

using F = StructuresFields;

// --- Form ---

std::vector<RegisterControl<Structures>> controls() {
    using enum ControlKind;
    std::vector<RegisterControl<Structures>> list{
        // Club
        {{.name = "nomField", .kind = Text}, &F::nom},
        {{.name = "typePopUp", .kind = PopUp, .menu = clubmenus::kind}, &F::type},
        {{.name = "affiliationField", .kind = Text}, &F::affiliation},
        {{.name = "gerantField", .kind = Text}, &F::gerant},
        {{.name = "adresseField", .kind = Text}, &F::adresse},
        {{.name = "codePostalField", .kind = Number}, &F::codePostal},
        {{.name = "villeField", .kind = Text}, &F::ville},
        {{.name = "paysField", .kind = Text}, &F::pays},
        {{.name = "telephoneField", .kind = Text}, &F::telephone},
        {{.name = "portableField", .kind = Text}, &F::portable},
        {{.name = "faxField", .kind = Text}, &F::fax},
        {{.name = "emailField", .kind = Text}, &F::email},
        {{.name = "urlField", .kind = Text}, &F::url},
        {{.name = "cotationSlider", .kind = Slider, .maximum = 5}, &F::cotation},
        {{.name = "cotationInfoField", .kind = Caption}},
        {{.name = "miseAJourField", .kind = Date}, &F::miseAJour},
        // Prices
        {{.name = "baptemeField", .kind = Number}, &F::bapteme},
        {{.name = "plongee_1Field", .kind = Text}, &F::plongee_1},
        {{.name = "plongee_2Field", .kind = Text}, &F::plongee_2},
        {{.name = "plongee_3Field", .kind = Text}, &F::plongee_3},
        {{.name = "plongee_4Field", .kind = Text}, &F::plongee_4},
        {{.name = "plongee_5Field", .kind = Text}, &F::plongee_5},
        {{.name = "prix_1Field", .kind = Number}, &F::prix_1},
        {{.name = "prix_2Field", .kind = Number}, &F::prix_2},
        {{.name = "prix_3Field", .kind = Number}, &F::prix_3},
        {{.name = "prix_4Field", .kind = Number}, &F::prix_4},
        {{.name = "prix_5Field", .kind = Number}, &F::prix_5},
        {{.name = "formation_1Field", .kind = Text}, &F::formation_1},
        {{.name = "formation_2Field", .kind = Text}, &F::formation_2},
        {{.name = "formation_3Field", .kind = Text}, &F::formation_3},
        {{.name = "formation_4Field", .kind = Text}, &F::formation_4},
        {{.name = "formation_5Field", .kind = Text}, &F::formation_5},
        {{.name = "formation_6Field", .kind = Text}, &F::formation_6},
        {{.name = "prixForm_1Field", .kind = Number}, &F::prixForm_1},
        {{.name = "prixForm_2Field", .kind = Number}, &F::prixForm_2},
        {{.name = "prixForm_3Field", .kind = Number}, &F::prixForm_3},
        {{.name = "prixForm_4Field", .kind = Number}, &F::prixForm_4},
        {{.name = "prixForm_5Field", .kind = Number}, &F::prixForm_5},
        {{.name = "prixForm_6Field", .kind = Number}, &F::prixForm_6},
        // Dives and remarks
        {{.name = "nbPlongeesField", .kind = Number}, &F::nbPlongees},
        {{.name = "remarquesField", .kind = Area}, &F::remarques},
    };
    openinghours::addControls<F>(list);
    return list;
}

std::vector<BlankValue> blankValues() {
    std::vector<BlankValue> values{blank::now("miseAJourField")};
    for (const char* number :
         {"codePostalField", "baptemeField", "prix_1Field", "prix_2Field", "prix_3Field", "prix_4Field",
          "prix_5Field", "prixForm_1Field", "prixForm_2Field", "prixForm_3Field", "prixForm_4Field",
          "prixForm_5Field", "prixForm_6Field", "nbPlongeesField"})
        values.push_back(blank::text(number, "0"));
    for (const openinghours::Day& day : openinghours::week)
        for (const char* time : day.controls) values.push_back(blank::text(time, "-"));
    return values;
}

/// The words are those of the budget's value for money.
void refreshForm(RegisterDocument<Structures>& document) {
    static constexpr Message<> words[] = {{"Budget", "N/A", "N/A"}, {"Budget", "Very bad"},
                                          {"Budget", "Bad"},        {"Budget", "Medium"},
                                          {"Budget", "Good"},       {"Budget", "Very good"}};
    Form& form = document.form();
    const int rating = std::clamp(form.tag({"cotationSlider"}), 0, 5);
    form.setText({"cotationInfoField"}, document.strings().text(words[rating]));
}

// --- Table ---

std::vector<RegisterColumn<Structures>> columns() {
    return {
        {&F::nom, ui("Name"), 18, toLeft, nullptr, registercolor::brown},
        {&F::affiliation, ui("Affiliation"), 12},
        {&F::ville, ui("Town"), 13},
        {&F::pays, ui("Country"), 11},
        {&F::telephone, ui("Phone"), 14},
        {&F::gerant, ui("Manager"), 14},
        {&F::nbPlongees, ui("Dives"), 6, toRight},
        {&F::cotation, ui("Rating"), 8, toLeft,
         [](const Structures& club, const Desk& desk) { return stars(club.cotation(), desk.strings); },
         [](const Structures& club, const Desk&) {
             return club.cotation() != 0 ? systemcolor::brown : systemcolor::black;
         }},
        {&F::miseAJour, ui("Updated on"), 10, centred},
    };
}

// --- Synthesis card ---

/// All of them, so that the cards of two clubs have their lines side by side.
void writePrice(CardWriter& card, const QString& name, Float price) {
    card.line(name + formatted(u" : %.2f ", double(price)) + u'€');
}

void writePrices(CardWriter& card, const Structures& club) {
    card.heading({"Structures", "Prices"});
    card.line(u"Bapteme"_s + formatted(u" : %.2f ", double(club.bapteme())) + u'€');
    writePrice(card, club.plongee_1(), club.prix_1());
    writePrice(card, club.plongee_2(), club.prix_2());
    writePrice(card, club.plongee_3(), club.prix_3());
    writePrice(card, club.plongee_4(), club.prix_4());
    writePrice(card, club.plongee_5(), club.prix_5());
    writePrice(card, club.formation_1(), club.prixForm_1());
    writePrice(card, club.formation_2(), club.prixForm_2());
    writePrice(card, club.formation_3(), club.prixForm_3());
    writePrice(card, club.formation_4(), club.prixForm_4());
    writePrice(card, club.formation_5(), club.prixForm_5());
    writePrice(card, club.formation_6(), club.prixForm_6());
}

void writeSchedules(CardWriter& card, const Structures& club) {
    static constexpr Message<> days[] = {{"Structures", "Monday"},    {"Structures", "Tuesday"},
                                         {"Structures", "Wednesday"}, {"Structures", "Thursday"},
                                         {"Structures", "Friday"},    {"Structures", "Saturday"},
                                         {"Structures", "Sunday"}};
    card.heading({"Structures", "Schedules"});
    for (std::size_t day = 0; day < std::size(days); ++day)
        card.line(days[day], openinghours::times<F>(club, day));
}

void writeCard(CardWriter& card, const Structures& club, qsizetype) {
    card.title({"Structures", "Inventory"});
    card.line(QString());
    card.line({"Structures", "Name"}, club.nom());
    card.line({"Structures", "Type"},
              word(clubmenus::kind, club.type(), card.strings(), QString::number(club.type())));
    card.line({"Structures", "Affiliation"}, club.affiliation());
    card.line({"Structures", "Gerant"}, club.gerant());
    card.line({"Structures", "Address"},
              QStringList{club.adresse(), QString::number(club.codePostal()), club.ville(), club.pays()}.join(
                  u' '));
    card.line({"Structures", "Phone"}, club.telephone());
    card.line({"Structures", "Mobile"}, club.portable());
    card.line({"Structures", "Fax"}, club.fax());
    card.line({"Structures", "E-mail"}, club.email());
    card.line({"Structures", "URL"}, club.url());
    card.line({"Structures", "Cotation"}, QString::number(club.cotation()));
    card.line({"Structures", "Update"}, cardDate(club.miseAJour()));
    writePrices(card, club);
    writeSchedules(card, club);
    card.line({"Structures", "NBDives"}, QString::number(club.nbPlongees()));
    card.line({"Structures", "Remarks"}, club.remarques());
    card.rule("\r------------------------------\r");
    card.closing();
}

}  // namespace

const RegisterDescription<Structures>& adressesStruct() {
    static const RegisterDescription<Structures> description{
        .design =
            {
                .nibName = "Structures",
                .operations = {.add = "addStructure",
                               .update = "updateStructure",
                               .erase = "deleteStructure",
                               .previous = "prevStruct",
                               .next = "nextStruct",
                               .edit = "editStructWindow",
                               .goPage = "goStructView_",
                               .synthesis = "inventaireWindow",
                               .print = "printStructuresList"},
                .listBar = {"structTableViewWindowToolbar",
                            {"saveDocument", "imprimer", "addStructure", "deleteStructure", "synthese"}},
                // Of the last three only "saveDocument" is an item that there is.
                .editBar = {"structEditWindowToolbar",
                            {"addStructure", "blankFields", "synthese", "updateStructure", "insertStructure",
                             "saveDocument"}},
                .needRecords = {"imprimer", "deleteStructure", "synthese"},
                .count = {oneCard, cards},
                .checksType = false,
                .layout = adressesStructLayout,
                .blank = blankValues(),
                .blankClearsSelection = false,
                .nowControl = "miseAJourField",
            },
        .recordClass = structuresClass,
        .controls = controls(),
        .columns = columns(),
        .card = writeCard,
        .refresh = refreshForm,
    };
    return description;
}

}  // namespace sargan
