#include <QFileInfo>
#include <QJsonDocument>
#include <cstdio>

#include "cli/Command.h"
#include "cli/FormJson.h"
#include "cli/Session.h"
#include "platform/record/RecordJson.h"

namespace sargan::cli {

namespace {

QJsonValue orNull(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

void runInfo(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const auto document = session.read(arguments.at(0, "FILE"));
    const DocumentSummary about = document->summary();
    const QString type = QLatin1String(document->kind().typeName);
    if (arguments.has("--json")) {
        return print(QJsonValue(QJsonObject{
            {QStringLiteral("type"), type},
            {QStringLiteral("class"), about.recordClass},
            {QStringLiteral("version"), about.version ? QJsonValue(*about.version) : QJsonValue()},
            {QStringLiteral("records"), about.records},
            {QStringLiteral("size"), QFileInfo(document->path()).size()},
            {QStringLiteral("first"), orNull(about.firstDate)},
            {QStringLiteral("last"), orNull(about.lastDate)},
        }));
    }
    print(QStringLiteral("type:    %1").arg(type));
    print(QStringLiteral("class:   %1%2")
              .arg(about.recordClass,
                   about.version ? QStringLiteral(", version %1").arg(*about.version) : QString()));
    print(QStringLiteral("records: %1").arg(about.records));
    print(QStringLiteral("size:    %1 bytes").arg(QFileInfo(document->path()).size()));
    if (!about.firstDate.isEmpty())
        print(QStringLiteral("from %1 to %2").arg(about.firstDate, about.lastDate));
}

void runDump(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString path = arguments.at(0, "FILE");
    if (!arguments.has("--as")) return print(QJsonValue(session.read(path)->dump()));
    const QByteArray bytes = readFile(path);
    const QString type = arguments.one("--as");
    try {
        const DocumentKind& kind = session.kinds().forContent(bytes, path);
        const auto document = kind.create(kind, session.desk());
        const bool isOwn = type == QLatin1String(kind.typeName);
        document->readBytes(bytes, isOwn ? kind.currentTypeName(session.desk()) : type);
        print(QJsonValue(document->dump()));
    } catch (const std::runtime_error& error) {
        throw DocumentError(QStringLiteral("%1: %2").arg(path, sentenceOf(error)));
    }
}

/// The document that a dump describes.
std::unique_ptr<Document> documentFromJson(Session& session, const QJsonObject& json) {
    const QStringList known{QStringLiteral("type"), QStringLiteral("class"), QStringLiteral("version"),
                            QStringLiteral("records")};
    for (const QString& key : json.keys())
        if (!known.contains(key)) throw JsonError(key, QStringLiteral("unknown field"));
    const QJsonValue type = json.value(QLatin1String("type"));
    const DocumentKind* kind = session.kinds().named(type.toString(), session.desk());
    if (!kind)
        throw JsonError(QStringLiteral("type"), QStringLiteral("expected the name of a document type"));
    const QJsonValue cls = json.value(QLatin1String("class"));
    if (!cls.isUndefined() && cls != QLatin1String(kind->recordClass))
        throw JsonError(QStringLiteral("class"),
                        QStringLiteral("a document of the type \"%1\" has records of the class \"%2\"")
                            .arg(type.toString(), QLatin1String(kind->recordClass)));
    const QJsonValue version = json.value(QLatin1String("version"));
    if (!version.isUndefined() && !version.isNull() && !version.isDouble())
        throw JsonError(QStringLiteral("version"), QStringLiteral("expected a number"));
    if (!json.value(QLatin1String("records")).isArray())
        throw JsonError(QStringLiteral("records"), QStringLiteral("expected an array"));
    auto document = kind->create(*kind, session.desk());
    document->loadRecords(json.value(QLatin1String("records")).toArray());
    return document;
}

void runLoad(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString path = arguments.at(0, "JSON");
    const QString output = arguments.one("-o");
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(readFile(path), &error);
    if (error.error != QJsonParseError::NoError)
        throw DocumentError(
            QStringLiteral("%1: byte %2: %3").arg(path, QString::number(error.offset), error.errorString()));
    if (!json.isObject()) throw DocumentError(QStringLiteral("%1: expected an object").arg(path));
    std::unique_ptr<Document> document;
    try {
        document = documentFromJson(session, json.object());
    } catch (const std::runtime_error& problem) {
        throw DocumentError(QStringLiteral("%1: %2").arg(path, sentenceOf(problem)));
    }
    if (output == QLatin1String("-"))
        writeOutput(output,
                    document->dataRepresentationOfType(document->kind().currentTypeName(session.desk())));
    else
        document->saveAs(output);
}

void runNew(Session& session, const Arguments& arguments) {
    arguments.atMost(2);
    const QString type = arguments.at(0, "TYPE");
    const QString path = arguments.at(1, "FILE");
    const DocumentKind* kind = session.kinds().named(type, session.desk());
    if (!kind) throw UsageError(QStringLiteral("there is no document type \"%1\"").arg(type));
    if (QFileInfo::exists(path))
        throw DocumentError(
            QStringLiteral("%1: there is such a file already, so it was left alone").arg(path));
    kind->create(*kind, session.desk())->saveAs(path);
}

void runAdd(Session& session, const Arguments& arguments) {
    const auto values = arguments.assignments(1);
    session.edit(arguments.at(0, "FILE"), [&](Document& document) {
        RecordEditor& editor = session.editor(document);
        const qsizetype row =
            editor.addRecord([&] { session.fill(editor.editForm(), values, arguments.all("--press")); });
        document.save();
        print(QStringLiteral("row %1").arg(row));
        return false;
    });
}

void runSet(Session& session, const Arguments& arguments) {
    const auto values = arguments.assignments(1);
    const int row = arguments.number("--row");
    session.edit(arguments.at(0, "FILE"), [&](Document& document) {
        RecordEditor& editor = session.editor(document);
        session.select(document, editor, {row});
        session.fill(editor.editForm(), values, arguments.all("--press"));
        editor.updateRecord();
        return true;
    });
}

void runForm(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const auto document = session.read(arguments.at(0, "FILE"));
    RecordEditor& editor = session.editor(*document);
    if (arguments.has("--row"))
        session.select(*document, editor, {arguments.number("--row")});
    else
        editor.blankForm();
    const Form& form = editor.editForm();
    if (arguments.has("--json"))
        return print(
            QJsonValue(QJsonObject{{QStringLiteral("controls"), formToJson(form, session.desk().strings)}}));
    for (int control = 0; control < form.count(); ++control)
        print(QStringLiteral("%1: %2").arg(QLatin1String(form.spec(control).name),
                                           form.shownText(control, session.desk().strings)));
}

void runDelete(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QList<qsizetype> rows = arguments.numbers("--row");
    session.edit(arguments.at(0, "FILE"), [&](Document& document) {
        RecordEditor& editor = session.editor(document);
        session.select(document, editor, rows);
        return editor.deleteRecords();
    });
}

constexpr OptionSpec jsonOption[] = {{"--json", Takes::Nothing, "", "as one JSON value"}};
constexpr OptionSpec dumpOptions[] = {{"--as", Takes::One, "TYPE", "open the file under this type name"}};
constexpr OptionSpec outputOption[] = {
    {"-o", Takes::One, "OUT", "file to write, replaced if it exists; - is standard output"}};
constexpr OptionSpec pressOption[] = {
    {"--press", Takes::One, "ACTION", "press this button of the form after filling; repeatable"}};
constexpr OptionSpec setOptions[] = {{"--row", Takes::Numbers, "N", "the record, counted from 0"},
                                     pressOption[0]};
constexpr OptionSpec formOptions[] = {{"--row", Takes::Numbers, "N", "this record instead of the blank form"},
                                      jsonOption[0]};
constexpr OptionSpec rowsOption[] = {{"--row", Takes::Numbers, "N…", "the records, counted from 0"}};

constexpr Command list[] = {
    {"info", "FILE [--json]",
     "Tells what a file is: type, record class and version, count, size, first and last date.", jsonOption,
     runInfo},
    {"dump", "FILE [--as TYPE]", "Prints a document as JSON, every field of every record.", dumpOptions,
     runDump},
    {"load", "JSON -o FILE", "Writes the document that a dump describes.", outputOption, runLoad},
    {"new",
     "TYPE FILE",
     "Writes an empty document of a type: \"Carnet de plongee\", \"Epaves\", …",
     {},
     runNew},
    {"add", "FILE control=value… [--press ACTION]",
     "Adds a record through the blank form and prints its row. A picture is a file: photocopy=scan.png, or a "
     "page of a PDF: photocopy=scan.pdf#3.",
     pressOption, runAdd},
    {"set", "FILE --row N control=value… [--press ACTION]", "Changes a record through the form.", setOptions,
     runSet},
    {"form", "FILE [--row N] [--json]", "Shows every control of the form, blank or with a record in it.",
     formOptions, runForm},
    {"delete", "FILE --row N…", "Removes records, after a question (--yes agrees).", rowsOption, runDelete},
};

}  // namespace

std::span<const Command> documentCommands() {
    return list;
}

}  // namespace sargan::cli
