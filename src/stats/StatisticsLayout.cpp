#include "stats/StatisticsFields.h"

namespace sargan {

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

struct Group {
    Message<> title;
    StatisticsCounter first;
    StatisticsCounter last;
    bool startsColumn;
};

constexpr Group groups[] = {
    {ui("Activities"), Bio, Autre, false},
    {ui("Apparatus"), OpenCircuit, ClosedCircuit, true},
    {{"Carnet", "Gas"}, AirCount, HelioxCount, false},
    {ui("Depths"), Prof_1, Prof_7, false},
};

/// Counts and shares, or the inputs for previous dives.
QList<LayoutSection> counterSections(bool isEditor) {
    QList<LayoutSection> sections;
    for (const Group& group : groups) {
        LayoutSection section{.title = group.title, .rows = {}, .startsColumn = group.startsColumn};
        for (const CounterFields& fields : counterFields()) {
            if (fields.counter < group.first || fields.counter > group.last) continue;
            if (isEditor)
                section.rows.append({{{.control = fields.sumField, .label = fields.words, .width = 7}}});
            else
                section.rows.append({{{.control = fields.field, .label = fields.words, .width = 6},
                                      {.control = fields.shareField, .width = 8}}});
        }
        sections.append(section);
    }
    return sections;
}

LayoutSection figuresSection() {
    LayoutSection section{.title = ui("Minima, maxima, totals"), .rows = {}};
    for (const FigureField& figure : figureFields())
        section.rows.append({{{.control = figure.field, .label = figure.words, .width = 14}}});
    return section;
}

LayoutSection summarySection() {
    return {.title = ui("Dives"),
            .rows = {{{{.control = statcontrol::state.text, .width = 24}}},
                     {{{.control = statcontrol::ignorePrevious.text, .label = ui("Ignore previous dives")}}},
                     {{{.action = "showEditStatisticsWindow", .label = ui("Previous dives…")}}}},
            .startsColumn = true};
}

LayoutSection previousFiguresSection() {
    const auto row = [](const char* field, const char* words, const char* unit) {
        return LayoutRow{
            {{.control = field, .label = ui(words), .unit = {"Interface", unit, unit}, .width = 9}}};
    };
    return {.title = ui("Minima, maxima, totals"),
            .rows = {{{{.control = "statSumDivesField", .label = ui("Number of dives"), .width = 9}}},
                     row("statSumProfMaxField", "Deepest dive", "m"),
                     row("statSumTempsMaxField", "Longest dive", "min"),
                     row("statSumProfField", "Total depth", "m"),
                     row("statSumTempsField", "Total time", "min"),
                     row("statSumTempMinField", "Coldest water", "°C"),
                     row("statSumTempMaxField", "Warmest water", "°C")},
            .startsColumn = true};
}

WindowLayout makeStatisticsLayout() {
    QList<LayoutSection> sections = counterSections(false);
    sections.append(summarySection());
    sections.append(figuresSection());
    return {"Statistics",
            {"Carnet", "Statistics"},
            {{"statistics", {"Carnet", "Statistics"}, nullptr, sections}}};
}

WindowLayout makePreviousDivesLayout() {
    QList<LayoutSection> sections = counterSections(true);
    sections.append(previousFiguresSection());
    sections.last().rows.append({{{.action = "validateStatisticsValues", .label = {"Main", "OK", "OK"}},
                                  {.action = "closeEditStatisticsWindow", .label = {"Main", "Cancel"}}}});
    return {"EditStatistics", ui("Previous dives"), {{"previous", ui("Previous dives"), nullptr, sections}}};
}

}  // namespace

const WindowLayout& statisticsLayout() {
    static const WindowLayout layout = makeStatisticsLayout();
    return layout;
}

const WindowLayout& previousDivesLayout() {
    static const WindowLayout layout = makePreviousDivesLayout();
    return layout;
}

}  // namespace sargan
