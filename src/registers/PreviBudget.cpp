#include "registers/PreviBudget.h"

#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"

namespace sargan {

using namespace registerwords;

namespace {

using F = BudgetFields;

// --- Form ---

std::vector<RegisterControl<Budget>> controls() {
    using enum ControlKind;
    return {
        // Service
        {{.name = "prestationField", .kind = Combo, .pickList = "prestations"}, &F::prestation},
        {{.name = "entrepriseField", .kind = Text}, &F::entreprise},
        {{.name = "prevDepenseSwitch", .kind = Switch}, &F::prevDepense},
        {{.name = "qualitePrixSlider", .kind = Slider, .maximum = 5}, &F::qualitePrix},
        {{.name = "qualitePrixInfoField", .kind = Caption}},
        {{.name = "delaiSlider", .kind = Slider, .maximum = 5}, &F::delai},
        {{.name = "delaiInfoField", .kind = Caption}},
        {{.name = "miseAJourField", .kind = Date, .noDate = "--/--/----"}, &F::miseAJour},
        // Prices
        {{.name = "quantite_0Field", .kind = Number}, &F::quantite_0},
        {{.name = "quantite_1Field", .kind = Number}, &F::quantite_1},
        {{.name = "quantite_2Field", .kind = Number}, &F::quantite_2},
        {{.name = "quantite_3Field", .kind = Number}, &F::quantite_3},
        {{.name = "quantite_4Field", .kind = Number}, &F::quantite_4},
        {{.name = "quantite_5Field", .kind = Number}, &F::quantite_5},
        {{.name = "prixUnitaire_0Field", .kind = Number}, &F::prixUnitaire_0},
        {{.name = "prixUnitaire_1Field", .kind = Number}, &F::prixUnitaire_1},
        {{.name = "prixUnitaire_2Field", .kind = Number}, &F::prixUnitaire_2},
        {{.name = "prixUnitaire_3Field", .kind = Number}, &F::prixUnitaire_3},
        {{.name = "prixUnitaire_4Field", .kind = Number}, &F::prixUnitaire_4},
        {{.name = "prixUnitaire_5Field", .kind = Number}, &F::prixUnitaire_5},
        {{.name = "supplement_1Field", .kind = Text}, &F::supplement_1},
        {{.name = "supplement_2Field", .kind = Text}, &F::supplement_2},
        {{.name = "supplement_3Field", .kind = Text}, &F::supplement_3},
        {{.name = "supplement_4Field", .kind = Text}, &F::supplement_4},
        {{.name = "totalField", .kind = Caption}},
        // Prepaid cards
        {{.name = "prixDegressifSwitch", .kind = Switch}, &F::prixDegressif},
        {{.name = "unitesCarte_1Field", .kind = Number}, &F::unitesCarte_1},
        {{.name = "unitesCarte_2Field", .kind = Number}, &F::unitesCarte_2},
        {{.name = "unitesCarte_3Field", .kind = Number}, &F::unitesCarte_3},
        {{.name = "unitesCarte_4Field", .kind = Number}, &F::unitesCarte_4},
        {{.name = "prixCarte_1Field", .kind = Number}, &F::prixCarte_1},
        {{.name = "prixCarte_2Field", .kind = Number}, &F::prixCarte_2},
        {{.name = "prixCarte_3Field", .kind = Number}, &F::prixCarte_3},
        {{.name = "prixCarte_4Field", .kind = Number}, &F::prixCarte_4},
        {{.name = "prixUnite_1Field", .kind = Caption}},
        {{.name = "prixUnite_2Field", .kind = Caption}},
        {{.name = "prixUnite_3Field", .kind = Caption}},
        {{.name = "prixUnite_4Field", .kind = Caption}},
        {{.name = "notesField", .kind = Area}, &F::notes},
    };
}

// What is counted starts with 0. The date of the last update starts without one.
constexpr const char* countedControls[] = {
    "quantite_0Field",     "quantite_1Field",     "quantite_2Field",     "quantite_3Field",
    "quantite_4Field",     "quantite_5Field",     "prixUnitaire_0Field", "prixUnitaire_1Field",
    "prixUnitaire_2Field", "prixUnitaire_3Field", "prixUnitaire_4Field", "prixUnitaire_5Field",
    "unitesCarte_1Field",  "unitesCarte_2Field",  "unitesCarte_3Field",  "unitesCarte_4Field",
    "prixCarte_1Field",    "prixCarte_2Field",    "prixCarte_3Field",    "prixCarte_4Field"};

std::vector<BlankValue> blankValues() {
    std::vector<BlankValue> values;
    for (const char* control : countedControls) values.push_back(blank::text(control, "0"));
    return values;
}

struct PriceLine {
    ControlName quantity;
    ControlName price;
};
constexpr PriceLine countedLines[] = {{{"quantite_0Field"}, {"prixUnitaire_0Field"}},
                                      {{"quantite_1Field"}, {"prixUnitaire_1Field"}},
                                      {{"quantite_2Field"}, {"prixUnitaire_2Field"}},
                                      {{"quantite_3Field"}, {"prixUnitaire_3Field"}},
                                      {{"quantite_4Field"}, {"prixUnitaire_4Field"}}};

struct Card {
    ControlName units;
    ControlName price;
    ControlName perUnit;
};
constexpr Card prepaidCards[] = {{{"unitesCarte_1Field"}, {"prixCarte_1Field"}, {"prixUnite_1Field"}},
                                 {{"unitesCarte_2Field"}, {"prixCarte_2Field"}, {"prixUnite_2Field"}},
                                 {{"unitesCarte_3Field"}, {"prixCarte_3Field"}, {"prixUnite_3Field"}},
                                 {{"unitesCarte_4Field"}, {"prixCarte_4Field"}, {"prixUnite_4Field"}}};

QString valueForMoney(Int rating, const Strings& strings) {
    static constexpr Message<> words[] = {{"Budget", "N/A", "N/A"}, {"Budget", "Very bad"},
                                          {"Budget", "Bad"},        {"Budget", "Medium"},
                                          {"Budget", "Good"},       {"Budget", "Very good"}};
    return strings.text(words[std::clamp(rating, 0, 5)]);
}

QString efficiency(Int rating, const Strings& strings) {
    static constexpr Message<> words[] = {{"Budget", "N/A", "N/A"},  {"Budget", "Very inefficient"},
                                          {"Budget", "Inefficient"}, {"Budget", "Medium"},
                                          {"Budget", "Satisfying"},  {"Budget", "Very satisfying"}};
    return strings.text(words[std::clamp(rating, 0, 5)]);
}

void refreshForm(RegisterDocument<Budget>& document) {
    Form& form = document.form();
    const Strings& strings = document.strings();
    double total = 0;
    for (const PriceLine& line : countedLines) total += form.integer(line.quantity) * form.number(line.price);
    form.setText({"totalField"}, shortest(Float(total)));
    const bool hasCards = form.tag({"prixDegressifSwitch"}) != 0;
    for (const Card& card : prepaidCards) {
        form.setEnabled(form[card.units], hasCards);
        form.setEnabled(form[card.price], hasCards);
        const int units = form.integer(card.units);
        const Float perUnit = units >= 1 ? Float(form.number(card.price)) / Float(units) : 0;
        form.setText(card.perUnit,
                     units >= 1
                         ? strings.text(Message<Float>{"Budget", "Discount price", "\r\rerror ! "}, perUnit)
                         : QString());
    }
    form.setText({"qualitePrixInfoField"}, valueForMoney(form.tag({"qualitePrixSlider"}), strings));
    form.setText({"delaiInfoField"}, efficiency(form.tag({"delaiSlider"}), strings));
}

// --- Table ---

QColor byPlan(const Budget& service, const Desk&) {
    return service.prevDepense() == 1 ? systemcolor::red : systemcolor::gray;
}

QColor byRating(Int rating) {
    return rating != 0 ? systemcolor::brown : systemcolor::gray;
}

std::vector<RegisterColumn<Budget>> columns() {
    return {
        {&F::prestation, ui("Service"), 18, toLeft, nullptr, registercolor::brown},
        {&F::entreprise, ui("Firm"), 16},
        {&F::prixUnitaire_0, ui("Unit price"), 9, toRight},
        {&F::quantite_0, ui("Quantity"), 8, toRight},
        {&F::qualitePrix, ui("Value for money"), 8, toLeft,
         [](const Budget& service, const Desk& desk) { return stars(service.qualitePrix(), desk.strings); },
         [](const Budget& service, const Desk&) { return byRating(service.qualitePrix()); }},
        {&F::delai, ui("Efficiency"), 8, toLeft,
         [](const Budget& service, const Desk& desk) { return stars(service.delai(), desk.strings); },
         [](const Budget& service, const Desk&) { return byRating(service.delai()); }},
        {&F::miseAJour, ui("Updated on"), 10, centred},
    };
}

// --- Synthesis card ---

/// Prices on the card are whole, cut off towards zero.
QString whole(Float price) {
    return std::abs(price) < 2147483648.0F ? QString::number(qint32(price)) : shortest(price);
}

void writeSupplement(CardWriter& card, const QString& name, Float price, Int quantity) {
    card.line({"Budget", "Supplement"}, name + u' ' + whole(price), {"Budget", "Quantity"},
              QString::number(quantity));
}

void writePrepaid(CardWriter& card, Int units, Float price) {
    card.line({"Budget", "Card"}, QString::number(units), {"Budget", "Units at"},
              whole(price) + u' ' + card.strings().text({"Budget", "Money"}));
}

void writeCard(CardWriter& card, const Budget& service, qsizetype) {
    card.title({"Budget", "Inventory"});
    card.rule("\r\r--------------------");
    card.line(QString());
    card.line({"Budget", "Prestation"}, service.prestation());
    card.line({"Budget", "Price per unit"}, whole(service.prixUnitaire_0()), {"Budget", "Quantity"},
              QString::number(service.quantite_0()));
    writeSupplement(card, service.supplement_1(), service.prixUnitaire_1(), service.quantite_1());
    writeSupplement(card, service.supplement_2(), service.prixUnitaire_2(), service.quantite_2());
    writeSupplement(card, service.supplement_3(), service.prixUnitaire_3(), service.quantite_3());
    writeSupplement(card, service.supplement_4(), service.prixUnitaire_4(), service.quantite_4());
    writePrepaid(card, service.unitesCarte_1(), service.prixCarte_1());
    writePrepaid(card, service.unitesCarte_2(), service.prixCarte_2());
    // The third card has always stood there twice.
    writePrepaid(card, service.unitesCarte_3(), service.prixCarte_3());
    writePrepaid(card, service.unitesCarte_3(), service.prixCarte_3());
    writePrepaid(card, service.unitesCarte_4(), service.prixCarte_4());
    card.line({"Budget", "Entreprise"}, service.entreprise());
    card.line({"Budget", "Cotation"}, valueForMoney(service.qualitePrix(), card.strings()));
    card.line({"Budget", "Delay"}, efficiency(service.delai(), card.strings()));
    card.line({"Budget", "Remarks"}, service.notes());
    card.closing("\r\r");
}

}  // namespace

const RegisterDescription<Budget>& previBudget() {
    static const RegisterDescription<Budget> description{
        .design =
            {
                .nibName = "Budget",
                .operations = {.add = "addPrestation",
                               .update = "updatePrestation",
                               .erase = "deletePrestation",
                               .previous = "prevPrestation",
                               .next = "nextPrestation",
                               .edit = "editBudgetWindow",
                               .goPage = "goBudgetView_",
                               .synthesis = "inventaireWindow",
                               .print = "printPrestationsList"},
                .listBar = {"budgetTableViewWindowToolbar",
                            {"imprimer", "addPrestation", "deletePrestation", "synthese"}},
                // "updatePrestation" is no item that there is, so this bar has no update button.
                .editBar = {"budgetEditWindowToolbar",
                            {"addPrestation", "blankFields", "synthese", "updatePrestation"}},
                .needRecords = {"imprimer", "deletePrestation", "synthese"},
                .count = {oneCard, cards},
                .layout = previBudgetLayout,
                .blank = blankValues(),
                .nowControl = "miseAJourField",
            },
        .recordClass = budgetClass,
        .controls = controls(),
        .columns = columns(),
        .otherColor = byPlan,
        .card = writeCard,
        .refresh = refreshForm,
        // Files of the oldest format cannot be read: there is nothing yet that does.
        .noList = [](Desk& desk) { desk.log.line(QStringLiteral("Format non reconnu")); },
    };
    return description;
}

}  // namespace sargan
