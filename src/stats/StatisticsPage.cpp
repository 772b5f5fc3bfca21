#include "stats/Statistics.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr TextStyle green{.color = inkcolor::green};
constexpr TextStyle blue{.color = inkcolor::blue};
constexpr TextStyle figure{.color = inkcolor::blue, .hanging = true};
constexpr TextStyle black{.color = inkcolor::black};
constexpr TextStyle title{.color = inkcolor::red, .underline = true};

/// A section of counts on the page.
struct Section {
    Message<> title;
    StatisticsCounter first;
    StatisticsCounter last;
};

/// Apparatus has no section: its counts stand on the panel only.
constexpr Section sections[] = {
    {{"Carnet", "Statistics dive type"}, Bio, Autre},
    {{"Carnet", "Statistics gas"}, AirCount, HelioxCount},
    {{"Carnet", "Statistics depth"}, Prof_1, Prof_7},
};

/// Where counts and shares stand, so that they form columns whatever the labels' lengths.
const QList<qreal> tabStops{260, 320, 340};

void appendCounts(StyledText& page, const Section& section, const Form& panel, const Strings& strings) {
    page.append(strings.text(section.title), title);
    for (const CounterFields& fields : counterFields()) {
        if (fields.counter < section.first || fields.counter > section.last) continue;
        page.append(strings.text(fields.pageLabel), black);
        page.append(u"%1\t\t(%2)"_s.arg(panel.text(ControlName{fields.field}),
                                        panel.text(ControlName{fields.shareField})),
                    blue);
    }
}

void appendFigures(StyledText& page, const Form& panel, const Strings& strings) {
    page.append(strings.text(Message<>{"Carnet", "Statistics min max"}), title);
    for (const FigureField& field : figureFields()) {
        page.append(strings.text(field.pageLabel), black);
        page.append(panel.text(ControlName{field.field}), figure);
    }
}

}  // namespace

StyledText Statistics::fillStatisticsField() const {
    const Strings& strings = desk().strings;
    StyledText page;
    page.setTabStops(tabStops);
    page.append(strings.text(Message<>{"Carnet", "Statistics header"}), green);
    page.append(u"\r\r"_s + _panel.text(statcontrol::state), blue);
    if (ignoresPreviousDives())
        page.append(strings.text(Message<>{"Carnet", "Statistics no prev dives"}), black);
    for (const Section& section : sections) appendCounts(page, section, _panel, strings);
    appendFigures(page, _panel, strings);
    page.append(strings.text(Message<>{"Carnet", "Statistics current"}), black);
    page.append(u"\rFile dir : "_s + _carnet.path(), green);
    page.append(u"\r\rEdition date : "_s + desk().clock.now().toString(u"dd/MM/yyyy HH:mm"_s), green);
    return page;
}

}  // namespace sargan
