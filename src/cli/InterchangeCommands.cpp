#include <QFileInfo>

#include "cli/Command.h"
#include "cli/Session.h"
#include "interchange/Formats.h"
#include "interchange/Import.h"

namespace sargan::cli {

namespace {

const DiveReader& readerNamed(const QString& name) {
    if (const DiveReader* reader = diveReaderNamed(name)) return *reader;
    QStringList known;
    for (const DiveReader* reader : diveReaders()) known << QLatin1String(reader->name());
    throw UsageError(QStringLiteral("there is no format \"%1\"; --format takes %2")
                         .arg(name, known.join(QStringLiteral(", "))));
}

/// A new logbook in a file that is not there yet.
void importIntoNew(Session& session, const QString& path, const std::function<void(Carnet&)>& import) {
    const DocumentKind& kind = session.kinds().standard();
    const auto document = kind.create(kind, session.desk());
    import(session.logbook(*document));
    document->saveAs(path);
}

void runImport(Session& session, const Arguments& arguments) {
    const QString path = arguments.at(0, "FILE");
    arguments.at(1, "INPUT");
    const QStringList inputs = arguments.positional().mid(1);
    const DiveReader& reader = readerNamed(arguments.one("--format"));
    QString told;
    const auto import = [&](Carnet& carnet) {
        told =
            importDives(carnet, inputs, reader, ImportAlerts::AsTheyHappen).sentence(session.desk().strings);
    };
    if (QFileInfo::exists(path))
        session.edit(path, [&](Document& document) {
            import(session.logbook(document));
            return true;
        });
    else
        importIntoNew(session, path, import);
    print(told);
}

constexpr OptionSpec importOptions[] = {{"--format", Takes::One, "FORMAT", "uddf, udcf or handheld"}};

constexpr Command list[] = {
    {"import", "FILE INPUT… --format uddf|udcf|handheld",
     "Appends the dives of other files to a logbook, which is made when it is not there.", importOptions,
     runImport},
};

}  // namespace

std::span<const Command> interchangeCommands() {
    return list;
}

}  // namespace sargan::cli
