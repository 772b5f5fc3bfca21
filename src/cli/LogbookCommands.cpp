#include "cli/Command.h"
#include "cli/Session.h"
#include "interchange/Formats.h"

namespace sargan::cli {

namespace {

void runRenumber(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const int from = arguments.number("--from");
    session.edit(arguments.at(0, "FILE"), [&](Document& document) {
        Carnet& carnet = session.logbook(document);
        carnet.panel().setInteger(panelcontrol::renumNumber, from);
        carnet.renumDives();
        return true;
    });
}

void runFind(Session& session, const Arguments& arguments) {
    arguments.atMost(2);
    const QString field = arguments.one("--in");
    static const QStringList fields{QStringLiteral("bateau"), QStringLiteral("epaves"),
                                    QStringLiteral("notes"), QStringLiteral("partenaires"),
                                    QStringLiteral("ordi")};
    if (!fields.contains(field))
        throw UsageError(QStringLiteral("--in takes %1").arg(fields.join(QStringLiteral(", "))));
    const QString text = arguments.at(1, "TEXT");
    const auto document = session.read(arguments.at(0, "FILE"));
    Carnet& carnet = session.logbook(*document);
    carnet.panel().setText(panelcontrol::search, text);
    try {
        carnet.findTextWithField(field);
    } catch (const UnknownKeyError& error) {
        throw DocumentError(QStringLiteral("%1: %2").arg(document->path(), error.sentence()));
    }
    for (const qsizetype row : carnet.selection()) print(QStringLiteral("row %1").arg(row));
    print(carnet.panel().text(panelcontrol::found));
}

void runExport(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString type = arguments.one("--type");
    const ExportFormat* format = exportFormatNamed(type);
    if (!format) throw UsageError(QStringLiteral("there is no export type \"%1\"").arg(type));
    const QString output = arguments.one("-o");
    const auto document = session.read(arguments.at(0, "FILE"));
    Carnet& carnet = session.logbook(*document);
    try {
        writeOutput(output, carnet.dataRepresentationOfType(QLatin1String(format->typeName)));
    } catch (const DocumentError& error) {
        if (!error.path().isEmpty() || error.message().key.isEmpty()) throw;
        throw DocumentError(error.message(), document->path());
    }
}

constexpr OptionSpec renumberOptions[] = {{"--from", Takes::Numbers, "S", "number of the first dive"}};
constexpr OptionSpec findOptions[] = {
    {"--in", Takes::One, "FIELD", "bateau, epaves, notes, partenaires or ordi"}};
constexpr OptionSpec exportOptions[] = {
    {"--type", Takes::One, "NAME",
     "csv-semicolon, csv-comma, txt-tab, profiles-csv, udcf, uddf, or a type's full name"},
    {"-o", Takes::One, "OUT", "file to write, replaced if it exists; - is standard output"},
};

constexpr Command list[] = {
    {"renumber", "FILE --from S", "Numbers the dives in list order, the first one S.", renumberOptions,
     runRenumber},
    {"find", "FILE --in FIELD TEXT", "Prints the rows whose field contains a text, then their count.",
     findOptions, runFind},
    {"export", "FILE --type NAME -o OUT", "Writes a logbook in another format.", exportOptions, runExport},
};

}  // namespace

std::span<const Command> logbookCommands() {
    return list;
}

}  // namespace sargan::cli
