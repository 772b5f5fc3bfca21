#include "stats/Synthesis.h"

#include "stats/SynthesisLines.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr MenuItem coverages[] = {
    {0, {"Interface", "The selected dive", "The selected dive"}},
    {1, {"Interface", "All dives", "All dives"}},
};

constexpr ControlSpec chooserControls[] = {
    {.name = synthesiscontrol::selectedDives.text,
     .kind = ControlKind::PopUp,
     .menu = coverages,
     .spread = true},
};

constexpr TextStyle title{.color = inkcolor::red};
constexpr TextStyle sectionTitle{.color = inkcolor::red, .underline = true};
constexpr TextStyle label{.color = inkcolor::black};
constexpr TextStyle value{.color = inkcolor::blue};

void append(StyledText& text, const ReportLine& line, const ReportedDive& dive) {
    const QString shown = line.value ? line.value(dive) : QString();
    if (line.value && shown.isNull()) return;
    const QString words = line.label.key ? dive.strings.text(line.label) : QString();
    switch (line.kind) {
        case LineKind::Title:
            text.append(words + u" : "_s, title);
            text.append(shown, value);
            break;
        case LineKind::Section:
            text.append(u"\r\r"_s, label);
            text.append(words, sectionTitle);
            break;
        case LineKind::Heading:
            text.append(u"\r"_s + words + shown, label);
            break;
        case LineKind::Item:
            text.append(u"\r"_s + words + u" : "_s, label);
            text.append(shown, value);
            break;
        case LineKind::Named: {
            const qsizetype end = shown.indexOf(u" : "_s) + 3;
            text.append(u"\r"_s + shown.left(end), label);
            text.append(shown.mid(end), value);
            break;
        }
        case LineKind::Text:
            text.append(shown, value);
            break;
    }
}

}  // namespace

StyledText diveReport(const Plongee& dive, const Strings& strings, bool usUnits) {
    StyledText text;
    const ReportedDive reported{dive, strings, usUnits};
    for (const std::span<const ReportLine> part : reportParts())
        for (const ReportLine& line : part) append(text, line, reported);
    text.append(u"\r\r"_s + QString(60, u'•') + u"\r\r"_s, label);
    return text;
}

Synthesis::Synthesis(Carnet& carnet) : _carnet(carnet), _chooser(chooserControls) {
    _chooser.addAction(u"syntheseWindow"_s, [this] { syntheseWindow(); });
    _chooser.addAction(u"closeDivesForSynthesisWindow"_s, [this] {
        if (onCloseChooser) onCloseChooser();
    });
}

void Synthesis::divesForSynthesisWindow() {
    _chooser.setTag(synthesiscontrol::selectedDives, _carnet.selectedRow() < 0 ? 1 : 0);
    if (onShowChooser) onShowChooser();
}

void Synthesis::syntheseWindow() {
    const std::optional<StyledText> report = fillSynthesisWindow();
    if (!report) {
        _carnet.desk().prompt.beep();
        return;
    }
    if (onCloseChooser) onCloseChooser();
    if (onShowReport) onShowReport(*report);
}

bool Synthesis::wantsAll() const {
    return _chooser.tag(synthesiscontrol::selectedDives) != 0;
}

bool Synthesis::canFill() const {
    return wantsAll() || _carnet.selectedRow() >= 0;
}

std::optional<StyledText> Synthesis::fillSynthesisWindow() const {
    if (!canFill()) return std::nullopt;
    const bool usUnits = _carnet.desk().defaults.boolean(u"us units"_s);
    const qsizetype first = wantsAll() ? 0 : _carnet.selectedRow();
    const qsizetype end = wantsAll() ? _carnet.count() : first + 1;
    StyledText report;
    for (qsizetype row = first; row < end; ++row)
        report.append(diveReport(_carnet.record(row), _carnet.strings(), usUnits));
    return report;
}

const WindowLayout& synthesisChooserLayout() {
    static const WindowLayout layout{
        "DivesForSynthesis",
        {"Main", "Synthesis card"},
        {{"dives",
          {"Main", "Synthesis card"},
          nullptr,
          {{.title = {"Interface", "Dives to report on", "Dives to report on"},
            .rows = {{{{.control = synthesiscontrol::selectedDives.text}}},
                     {{{.action = "syntheseWindow", .label = {"Main", "OK", "OK"}},
                       {.action = "closeDivesForSynthesisWindow", .label = {"Main", "Cancel"}}}}}}}}}};
    return layout;
}

}  // namespace sargan
