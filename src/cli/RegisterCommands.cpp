#include <QFileInfo>
#include <QJsonArray>

#include "cli/Command.h"
#include "cli/Session.h"
#include "platform/print/CommandApplication.h"
#include "registers/Register.h"

namespace sargan::cli {

using namespace Qt::StringLiterals;

namespace {

Register& registerOf(Document& document) {
    if (auto* found = dynamic_cast<Register*>(&document)) return *found;
    throw DocumentError(u"%1: this is no register but a document of the type \"%2\""_s.arg(
        document.path(), QLatin1String(document.kind().typeName)));
}

/// By the output's name; standard output takes plain text.
QString formatOf(const QString& output) {
    if (output == "-"_L1) return u"txt"_s;
    const QString format = QFileInfo(output).suffix().toLower();
    if (format == "pdf"_L1 || format == "html"_L1 || format == "txt"_L1) return format;
    throw UsageError(u"-o takes a file whose name ends in .pdf, .html or .txt"_s);
}

void runCard(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const int row = arguments.number("--row");
    const QString output = arguments.one("-o");
    const QString format = formatOf(output);
    const auto document = session.read(arguments.at(0, "FILE"));
    Register& shown = registerOf(*document);
    if (!shown.hasCard())
        throw DocumentError(u"%1: documents of the type \"%2\" have no synthesis card"_s.arg(
            document->path(), QLatin1String(document->kind().typeName)));
    session.select(*document, shown, {row});
    if (format == "pdf"_L1) ensureGuiApplication();
    writeOutput(output, bytesOf(shown.card(row), document->displayName(), format));
}

QJsonObject barToJson(const ToolbarState& bar, const Strings& strings) {
    QJsonArray items;
    for (const ToolbarItemState& item : bar.items)
        items.append(QJsonObject{{u"identifier"_s, item.identifier},
                                 {u"label"_s, strings.text(item.label)},
                                 {u"enabled"_s, item.enabled}});
    return {{u"identifier"_s, bar.identifier}, {u"items"_s, items}};
}

void runToolBars(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const auto document = session.read(arguments.at(0, "FILE"));
    QJsonArray bars;
    for (const ToolbarState& bar : document->toolbars()) bars.append(barToJson(bar, session.desk().strings));
    if (arguments.has("--json")) return print(QJsonValue(bars));
    for (const QJsonValue& bar : bars) {
        print(bar["identifier"_L1].toString());
        for (const QJsonValue& item : bar["items"_L1].toArray())
            print(u"  %1: %2%3"_s.arg(item["identifier"_L1].toString(), item["label"_L1].toString(),
                                      item["enabled"_L1].toBool() ? QString() : u" (disabled)"_s));
    }
}

constexpr OptionSpec cardOptions[] = {
    {"--row", Takes::Numbers, "N", "the record, counted from 0"},
    {"-o", Takes::One, "OUT", "file to write, .pdf, .html or .txt; - is standard output"}};
constexpr OptionSpec barOptions[] = {{"--json", Takes::Nothing, "", "as one JSON value"}};

constexpr Command list[] = {
    {"card", "FILE --row N -o OUT.pdf|html|txt", "Writes the synthesis card of a register's record.",
     cardOptions, runCard},
    {"tool-bars", "FILE [--json]", "Shows a document's toolbars with their items, labels and states.",
     barOptions, runToolBars},
};

}  // namespace

std::span<const Command> registerCommands() {
    return list;
}

}  // namespace sargan::cli
