#include "registers/RebreatherServ.h"

#include "platform/document/DocumentError.h"
#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"

namespace sargan {

using namespace Qt::StringLiterals;
using namespace registercolor;
using namespace registerwords;

namespace {

using F = RebreatherFields;

/// What belongs to one oxygen cell.
struct Cell {
    const Field<Rebreather>* isFitted;
    const Field<Rebreather>* type;
    const Field<Rebreather>* fitted;
    const char* fittedSwitch;
    const char* typeField;
    const char* inField;
    const char* outField;
    const char* gauge;
};

constexpr Cell cells[] = {
    {&F::cell1, &F::typeCell1, &F::cell1_in, "cell1Switch", "typeCell1Field", "cell1_inField",
     "cell1_outField", "cell1Progress"},
    {&F::cell2, &F::typeCell2, &F::cell2_in, "cell2Switch", "typeCell2Field", "cell2_inField",
     "cell2_outField", "cell2Progress"},
    {&F::cell3, &F::typeCell3, &F::cell3_in, "cell3Switch", "typeCell3Field", "cell3_inField",
     "cell3_outField", "cell3Progress"},
    {&F::cell4, &F::typeCell4, &F::cell4_in, "cell4Switch", "typeCell4Field", "cell4_inField",
     "cell4_outField", "cell4Progress"},
    {&F::cell5, &F::typeCell5, &F::cell5_in, "cell5Switch", "typeCell5Field", "cell5_inField",
     "cell5_outField", "cell5Progress"},
};

template <class T>
const T& valueOf(const Rebreather& service, const Field<Rebreather>& field) {
    return service.*std::get<T Rebreather::*>(field.member);
}

// --- Form ---

constexpr MenuItem cellCountItems[] = {
    {0, {"Rebreather", "0 cells", "0"}}, {1, {"Rebreather", "1 cell", "1"}},
    {2, {"Rebreather", "2 cells", "2"}}, {3, {"Rebreather", "3 cells", "3"}},
    {4, {"Rebreather", "4 cells", "4"}}, {5, {"Rebreather", "5 cells", "5"}}};

std::vector<RegisterControl<Rebreather>> controls() {
    using enum ControlKind;
    std::vector<RegisterControl<Rebreather>> list{
        // Intervention
        {{.name = "dateField", .kind = Date}, &F::date},
        {{.name = "rebreatherTimeField", .kind = Text}, &F::rebreatherTime},
        {{.name = "sofnoTimeField", .kind = Time}, &F::sofnoTime},
        // Work
        {{.name = "sofnolimeSwitch", .kind = Switch}, &F::sofnolime},
        {{.name = "disinfectionSwitch", .kind = Switch}, &F::disinfection},
        {{.name = "batterySwitch", .kind = Switch}, &F::battery},
        {{.name = "cellsSwitch", .kind = Switch}, &F::cells},
        {{.name = "nbCellsPopUp", .kind = PopUp, .menu = cellCountItems}, &F::nbCells},
        {{.name = "injectorSwitch", .kind = Switch}, &F::injector},
        {{.name = "valveSwitch", .kind = Switch}, &F::valve},
        {{.name = "oRingSwitch", .kind = Switch}, &F::oRing},
        {{.name = "scrubberSwitch", .kind = Switch}, &F::scrubber},
        {{.name = "electronicHeadSwitch", .kind = Switch}, &F::electronicHead},
        {{.name = "mpO2Switch", .kind = Switch}, &F::mpO2},
        {{.name = "mpO2ValueField", .kind = Number}, &F::mpO2Value},
    };
    for (const Cell& cell : cells) {
        list.push_back({{.name = cell.fittedSwitch, .kind = Switch}, cell.isFitted});
        list.push_back({{.name = cell.typeField, .kind = Text}, cell.type});
        list.push_back({{.name = cell.inField, .kind = Date}, cell.fitted});
        list.push_back({{.name = cell.outField, .kind = Date}});
        list.push_back({{.name = cell.gauge, .kind = Gauge, .numbered = true}});
    }
    list.push_back({{.name = "notesField", .kind = Area}, &F::notes});
    return list;
}

std::vector<BlankValue> blankValues() {
    std::vector<BlankValue> values{blank::now("dateField"), blank::text("rebreatherTimeField", "--:--"),
                                   blank::date("sofnoTimeField", "2001-01-01T00:00:00")};
    for (const Cell& cell : cells) values.push_back(blank::date(cell.inField, "1900-01-01"));
    return values;
}

/// A new intervention starts with the cells that are fitted now.
void carryCellsOver(RegisterDocument<Rebreather>& document) {
    if (document.count() == 0)
        throw DocumentError(FileMessage{
            QStringLiteral("No earlier intervention"),
            QStringLiteral("there is no earlier intervention to carry cells over from, so none was added"),
            {}});
    const Rebreather& last = document.record(document.count() - 1);
    Form& form = document.form();
    for (const Cell& cell : cells) {
        form.setTag({cell.fittedSwitch}, valueOf<Int>(last, *cell.isFitted));
        form.setText({cell.typeField}, valueOf<Text>(last, *cell.type));
        form.setDate(form[ControlName{cell.inField}], valueOf<Date>(last, *cell.fitted));
    }
}

void refreshForm(RegisterDocument<Rebreather>& document) {
    Form& form = document.form();
    form.setEnabled(form[ControlName{"nbCellsPopUp"}], form.tag({"cellsSwitch"}) != 0);
    for (const Cell& cell : cells) {
        const bool isHidden = form.tag({cell.fittedSwitch}) == 0;
        for (const char* control : {cell.inField, cell.outField, cell.gauge})
            form.setHidden(form[ControlName{control}], isHidden);
        form.setEnabled(form[ControlName{cell.outField}], false);
    }
    if (document.count() == 0) return;
    const int months = document.desk().defaults.integer(u"cell life"_s);
    for (const Cell& cell : cells)
        updateCellsLife(document, months, *cell.fitted, {cell.inField}, {cell.outField}, {cell.gauge});
}

/// Months of life as the clock counts them: a mean month of 30.4375 days, multiplied in 32 bits.
Date endOfLife(const Date& fitted, int months) {
    constexpr quint32 monthSeconds = 2629800;
    if (!fitted.isPresent()) return {};
    return Moment::fromSeconds(fitted.seconds() + qint32(quint32(months) * monthSeconds));
}

// --- Table ---

template <auto& field>
QString checkOf(const Rebreather& service, const Desk& desk) {
    return check(valueOf<Int>(service, field), desk.strings);
}

std::vector<RegisterColumn<Rebreather>> columns() {
    return {
        {&F::date, ui("Date"), 10, centred, nullptr, brown},
        {&F::rebreatherTime, ui("Loop time"), 8, centred},
        {&F::sofnoTime, ui("Absorbent time"), 8, centred,
         [](const Rebreather& service, const Desk&) { return cardTime(service.sofnoTime()); }},
        {&F::sofnolime, ui("Absorbent"), 9, centred, checkOf<F::sofnolime>, green},
        {&F::disinfection, ui("Disinfection"), 10, centred, checkOf<F::disinfection>, green},
        {&F::battery, ui("Battery"), 7, centred, checkOf<F::battery>, green},
        {&F::nbCells, ui("Cells"), 6, centred,
         [](const Rebreather& service, const Desk&) {
             return service.nbCells() == 0 ? QString() : QString::number(service.nbCells());
         }},
        {&F::mpO2Value, ui("O2 pressure"), 9, toRight,
         [](const Rebreather& service, const Desk&) {
             return service.mpO2Value() == 0 ? QString() : shortest(service.mpO2Value());
         }},
        {&F::injector, ui("Injector"), 8, centred, checkOf<F::injector>, green},
        {&F::valve, ui("Loop valves"), 7, centred, checkOf<F::valve>, green},
        {&F::oRing, ui("O-rings"), 7, centred, checkOf<F::oRing>, green},
        {&F::electronicHead, ui("Head"), 6, centred, checkOf<F::electronicHead>, green},
        {&F::scrubber, ui("Scrubber"), 8, centred, checkOf<F::scrubber>, green},
        {&F::notes, ui("Remarks"), 24},
    };
}

// --- Synthesis card ---

void writeCells(CardWriter& card, const Rebreather& service) {
    const int months = card.desk().defaults.integer(u"cell life"_s);
    static constexpr Message<> labels[] = {{"Rebreather", "Cell 1"},
                                           {"Rebreather", "Cell 2"},
                                           {"Rebreather", "Cell 3"},
                                           {"Rebreather", "Cell 4"},
                                           {"Rebreather", "Cell 5"}};
    card.heading({"Rebreather", "Cells"});
    for (std::size_t i = 0; i < std::size(cells); ++i) {
        const Cell& cell = cells[i];
        if (valueOf<Int>(service, *cell.isFitted) == 0) continue;
        const Date& fitted = valueOf<Date>(service, *cell.fitted);
        card.line(labels[i], u"%1, %2 - %3"_s.arg(valueOf<Text>(service, *cell.type), cardDate(fitted),
                                                  cardDate(endOfLife(fitted, months))));
    }
}

void writeOperations(CardWriter& card, const Rebreather& service) {
    const auto done = [&](Int value, const Message<>& words) {
        if (value == 1) card.line(words);
    };
    done(service.sofnolime(), {"Rebreather", "Sofnolime"});
    done(service.disinfection(), {"Rebreather", "Disinfection"});
    done(service.battery(), {"Rebreather", "Battery"});
    if (service.cells() == 1)
        card.line({"Rebreather", "Cells replacement"}, QString::number(service.nbCells()));
    if (service.mpO2() == 1)
        card.line(card.strings().text({"Rebreather", "MpO2"}) +
                  u" : %1 bar"_s.arg(shortest(service.mpO2Value())));
    done(service.injector(), {"Rebreather", "Injector"});
    done(service.valve(), {"Rebreather", "Valve"});
    done(service.oRing(), {"Rebreather", "ORing"});
    done(service.electronicHead(), {"Rebreather", "Electronic head"});
    done(service.scrubber(), {"Rebreather", "Scrubber"});
}

void writeCard(CardWriter& card, const Rebreather& service, qsizetype) {
    card.title({"Rebreather", "Inventory"});
    writeCells(card, service);
    card.rule("\r----------------------------------------\r");
    card.line({"Rebreather", "Date"}, cardDate(service.date()));
    card.heading({"Rebreather", "Rebreather history"});
    card.line({"Rebreather", "Rebreather time"}, service.rebreatherTime());
    // In its own table "Soda time" is the calculators' format of hours and minutes.
    card.line({"Main", "Soda time"}, cardTime(service.sofnoTime()) + u" h"_s);
    writeOperations(card, service);
    card.line({"Rebreather", "Remarks"}, service.notes());
    card.rule("\r----------------------------------------\r");
    card.closing();
}

}  // namespace

void updateCellsLife(RegisterDocument<Rebreather>& document, int months, const Field<Rebreather>& cellInKey,
                     ControlName cellIn, ControlName cellOut, ControlName progress) {
    Form& form = document.form();
    const qsizetype row = document.currentIndex();
    const Date stored =
        row >= 0 && row < document.count() ? valueOf<Date>(document.record(row), cellInKey) : Date();
    const Date end = endOfLife(stored, months);
    form.setDate(form[cellOut], end);
    const Date shown = form.date(form[cellIn]);
    double percent = 0;
    if (end.isPresent() && shown.isPresent()) {
        const double now = Moment::fromDateTime(document.desk().clock.now()).seconds();
        percent = -100 * (shown.seconds() - now) / (end.seconds() - shown.seconds());
    }
    form.setLevel(form[progress], percent);
}

const RegisterDescription<Rebreather>& rebreatherServ() {
    static const RegisterDescription<Rebreather> description{
        .design =
            {
                .nibName = "Rebreather",
                .operations = {.add = "addRebreatherService",
                               .update = "updateRebreatherService",
                               .erase = "deleteRebreatherService",
                               .previous = "prevRebreatherService",
                               .next = "nextRebreatherService",
                               .edit = "editRebreatherWindow",
                               .goPage = "goRebreatherView_",
                               .synthesis = "inventaireWindow",
                               .print = "printRebreatherServicesList"},
                .listBar = {"rebreatherTableViewWindowToolbar",
                            {"saveDocument", "imprimer", "addRebreatherService", "deleteRebreatherService",
                             "synthese"}},
                .editBar = {"rebreatherEditWindowToolbar",
                            {"addRebreatherService", "blankFields", "synthese"}},
                .needRecords = {"imprimer", "deleteRebreatherService", "synthese"},
                .count = {{"Main", "One intervention", "\r\rerror ! "},
                          Message<int>{"Main", "Interventions", "\r\rerror ! "}},
                .layout = rebreatherServLayout,
                .blank = blankValues(),
                .nowControl = "dateField",
            },
        .recordClass = rebreatherClass,
        .controls = controls(),
        .columns = columns(),
        .otherColor = gray,
        .date = &F::date,
        .card = writeCard,
        .refresh = refreshForm,
        .carryOver = carryCellsOver,
    };
    return description;
}

}  // namespace sargan
