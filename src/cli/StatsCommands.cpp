#include <QFileInfo>

#include "cli/Command.h"
#include "cli/Session.h"
#include "platform/print/CommandApplication.h"
#include "platform/record/RecordJson.h"
#include "stats/Statistics.h"
#include "stats/Synthesis.h"

namespace sargan::cli {

namespace {

using namespace Qt::StringLiterals;

/// The format that an output's extension names; standard output takes the first one.
QString formatOf(const QString& output, const QStringList& formats) {
    const QString extension = output == "-"_L1 ? formats.first() : QFileInfo(output).suffix().toLower();
    if (!formats.contains(extension))
        throw UsageError(u"%1: the name has to end with .%2"_s.arg(output, formats.join(u", ."_s)));
    return extension;
}

const QStringList textFormats{u"txt"_s, u"html"_s, u"pdf"_s};
const QStringList pictureFormats{u"png"_s, u"svg"_s, u"pdf"_s};

/// A document is read after this: an application that knows fonts has to be there first.
QString textFormatOf(const QString& output) {
    const QString format = formatOf(output, textFormats);
    if (format == "pdf"_L1) ensureGuiApplication();
    return format;
}

QString titleOf(const Message<>& subject, const Document& document) {
    return document.strings().text(subject) + u" – "_s + document.displayName();
}

void writeText(const StyledText& text, const Message<>& subject, const Document& document,
               const QString& output, const QString& format) {
    writeOutput(output, bytesOf(text, titleOf(subject, document), format));
}

QJsonObject sharesJson(const GraphesShares& shares) {
    QJsonObject graph;
    for (std::size_t i = 0; i < shares.size(); ++i)
        graph.insert(QLatin1String(graphesValues[i].name), json::value(shares[i]));
    return graph;
}

/// The display fields, in the order in which the panel is filled.
void forEachField(const Form& panel, const std::function<void(const QString&, const QString&)>& use) {
    for (int control = 0; control < panel.count(); ++control)
        if (panel.spec(control).kind == ControlKind::Caption)
            use(QLatin1String(panel.spec(control).name), panel.text(control));
}

void printStatistics(const Statistics& statistics, bool asJson) {
    if (!asJson) {
        forEachField(statistics.panel(), [](const QString& name, const QString& text) {
            print(name + u": "_s + QString(text).replace(u'\r', u' '));
        });
        return;
    }
    QJsonObject fields;
    forEachField(statistics.panel(),
                 [&fields](const QString& name, const QString& text) { fields.insert(name, text); });
    fields.insert(u"graph"_s, sharesJson(statistics.shares()));
    print(QJsonValue(fields));
}

void runStats(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString output = arguments.has("-o") ? arguments.one("-o") : QString();
    const QString format = output.isEmpty() ? QString() : textFormatOf(output);
    const auto document = session.read(arguments.at(0, "FILE"));
    Statistics statistics(session.logbook(*document));
    statistics.panel().setTag(statcontrol::ignorePrevious, arguments.has("--ignore-previous") ? 1 : 0);
    if (!output.isEmpty())
        writeText(statistics.fillStatisticsField(), {"Carnet", "Statistics"}, *document, output, format);
    if (output.isEmpty() || arguments.has("--json")) printStatistics(statistics, arguments.has("--json"));
}

void runSynthesis(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString output = arguments.one("-o");
    const QString format = textFormatOf(output);
    const auto document = session.read(arguments.at(0, "FILE"));
    Carnet& carnet = session.logbook(*document);
    const bool wantsOne = arguments.has("--row");
    if (wantsOne) session.select(*document, carnet, {arguments.number("--row")});
    Synthesis synthesis(carnet);
    synthesis.chooser().setTag(synthesiscontrol::selectedDives, wantsOne ? 0 : 1);
    writeText(synthesis.fillSynthesisWindow().value_or(StyledText()), {"Main", "Synthesis card"}, *document,
              output, format);
}

void runGraphs(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString output = arguments.one("-o");
    const QString format = formatOf(output, pictureFormats);
    ensureGuiApplication();
    const auto document = session.read(arguments.at(0, "FILE"));
    const Statistics statistics(session.logbook(*document));
    const Drawing drawing = Graphes::drawing(statistics.shares(), GraphesStyle::of(session.desk().defaults));
    writeOutput(output, bytesOf(drawing, titleOf({"Carnet", "Statistics"}, *document), format));
}

constexpr OptionSpec statsOptions[] = {
    {"--ignore-previous", Takes::Nothing, "", "leave out the dives made before this logbook"},
    {"--json", Takes::Nothing, "", "as one JSON value, with the eleven shares of the graph"},
    {"-o", Takes::One, "OUT",
     "write the printable page as .pdf, .html or .txt; - is text on standard output"},
};
constexpr OptionSpec synthesisOptions[] = {
    {"--row", Takes::Numbers, "N", "this dive only, counted from 0"},
    {"-o", Takes::One, "OUT", "file to write: .pdf, .html or .txt; - is text on standard output"},
};
constexpr OptionSpec graphsOptions[] = {
    {"-o", Takes::One, "OUT", "file to write: .png, .svg or .pdf; - is PNG on standard output"},
};

constexpr Command list[] = {
    {"stats", "FILE [--ignore-previous] [--json] [-o OUT]",
     "Prints the statistics of a logbook, or writes their printable page.", statsOptions, runStats},
    {"synthesis", "FILE [--row N] -o OUT", "Writes the report of one dive or of all.", synthesisOptions,
     runSynthesis},
    {"graphs", "FILE -o OUT", "Writes the bar chart of depths and gases.", graphsOptions, runGraphs},
};

}  // namespace

std::span<const Command> statsCommands() {
    return list;
}

}  // namespace sargan::cli
