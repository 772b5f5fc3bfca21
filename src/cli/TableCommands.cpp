#include <QFileInfo>
#include <QRegularExpression>

#include "cli/Command.h"
#include "cli/FormJson.h"
#include "cli/Session.h"
#include "logbook/DiveProfil.h"
#include "platform/document/ColumnOrder.h"
#include "platform/print/CommandApplication.h"
#include "platform/print/Drawing.h"
#include "platform/print/TablePages.h"
#include "platform/record/Field.h"
#include "registers/Register.h"

namespace sargan::cli {

namespace {

TableSource& tableOf(Document& document) {
    if (TableSource* table = document.table()) return *table;
    throw DocumentError(QStringLiteral("%1: documents of the type \"%2\" have no table so far")
                            .arg(document.path(), QLatin1String(document.kind().typeName)));
}

void runSort(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QStringList columns = arguments.all("--column");
    if (columns.isEmpty()) throw UsageError(QStringLiteral("--column ID… is missing"));
    session.edit(arguments.at(0, "FILE"), [&](Document& document) {
        TableSource& table = tableOf(document);
        try {
            for (const QString& column : columns) table.clickTableColumn(column);
        } catch (const UnknownKeyError& error) {
            throw UsageError(
                QStringLiteral("%1: there is no column \"%2\"").arg(document.path(), error.key()));
        }
        return true;
    });
}

QJsonObject cellToJson(const TableCell& cell) {
    return {{QStringLiteral("text"), cell.text.isNull() ? QLatin1String("") : cell.text},
            {QStringLiteral("color"), textColorToJson(cell.color)},
            {QStringLiteral("background"), textColorToJson(cell.background)},
            {QStringLiteral("bold"), cell.bold}};
}

void printTableAsJson(const TableSource& table) {
    QJsonArray identifiers, rows;
    const QList<TableColumn> columns = table.tableColumns();
    for (const TableColumn& column : columns) identifiers.append(column.identifier);
    for (qsizetype row = 0; row < table.tableRows(); ++row) {
        QJsonArray cells;
        for (int column = 0; column < int(columns.size()); ++column)
            cells.append(cellToJson(table.tableCell(row, column)));
        rows.append(cells);
    }
    const QString count = table.tableCount();
    print(QJsonValue(QJsonObject{{QStringLiteral("columns"), identifiers},
                                 {QStringLiteral("rows"), rows},
                                 {QStringLiteral("count"), count.isNull() ? QLatin1String("") : count}}));
}

/// Tabs and line ends within a cell would look like further cells.
QString onOneLine(QString text) {
    return text.replace(u'\t', u' ').replace(u'\n', u' ').replace(u'\r', u' ');
}

void runTable(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const auto document = session.read(arguments.at(0, "FILE"));
    const TableSource& table = tableOf(*document);
    if (arguments.has("--json")) return printTableAsJson(table);
    const QList<TableColumn> columns = table.tableColumns();
    QStringList titles;
    for (const TableColumn& column : columns) titles << session.desk().strings.text(column.title);
    print(titles.join(u'\t'));
    for (qsizetype row = 0; row < table.tableRows(); ++row) {
        QStringList cells;
        for (int column = 0; column < int(columns.size()); ++column)
            cells << onOneLine(table.tableCell(row, column).text);
        print(cells.join(u'\t'));
    }
    if (!table.tableCount().isEmpty()) print(table.tableCount());
}

/// Under which the window of such documents remembers its columns.
QString tableName(Document& document) {
    const auto* shown = dynamic_cast<const Register*>(&document);
    return shown ? QString::fromLatin1(shown->design().nibName) : QStringLiteral("Carnet");
}

void runPrint(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString output = arguments.one("-o");
    const auto document = session.read(arguments.at(0, "FILE"));
    const TablePages pages(tableOf(*document), session.desk().strings, document->displayName(),
                           rememberedColumnOrder(session.desk().defaults, tableName(*document)));
    ensureGuiApplication();
    writeOutput(output, pdfOf(pages));
}

QSizeF sizeFrom(const Arguments& arguments) {
    if (!arguments.has("--size")) return Profil::usualSize;
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const auto match = form.match(arguments.one("--size"));
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const bool isPossible =
        size.width() >= 100 && size.height() >= 100 && size.width() <= 10000 && size.height() <= 10000;
    if (!isPossible) throw UsageError(QStringLiteral("--size takes WxH, each from 100 to 10000"));
    return size;
}

/// By the file's name; what goes to standard output is a PNG.
QString pictureFormat(const QString& output) {
    const QString suffix = output == u'-' ? QStringLiteral("png") : QFileInfo(output).suffix().toLower();
    if (QStringList{QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")}.contains(suffix))
        return suffix;
    throw UsageError(QStringLiteral("%1: the picture's name ends in .png, .svg or .pdf").arg(output));
}

void runProfile(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString output = arguments.one("-o");
    const QString format = pictureFormat(output);
    const QSizeF size = sizeFrom(arguments);
    const int row = arguments.number("--row");
    const auto document = session.read(arguments.at(0, "FILE"));
    Carnet& carnet = session.logbook(*document);
    session.select(*document, carnet, {row});
    Profil profil = profilOf(carnet.record(row));
    profil.style = profilStyle(session.desk().defaults);
    ensureGuiApplication();
    const Drawing drawing{size,
                          [&](QPainter& painter) { profil.draw(painter, size, session.desk().strings); }};
    const QString title = session.desk().strings.text(Message<int>{"Interface", "Dive %d", "Dive %d"},
                                                      carnet.record(row).noPlongee());
    writeOutput(output, bytesOf(drawing, title, format));
}

constexpr OptionSpec outputOption = {"-o", Takes::One, "OUT",
                                     "file to write, replaced if it exists; - is standard output"};
constexpr OptionSpec sortOptions[] = {
    {"--column", Takes::Words, "ID…", "the columns whose headers are clicked, in order"}};
constexpr OptionSpec tableOptions[] = {{"--json", Takes::Nothing, "", "as one JSON value, with colours"}};
constexpr OptionSpec printOptions[] = {outputOption};
constexpr OptionSpec profileOptions[] = {
    {"--row", Takes::Numbers, "N", "the dive, counted from 0"},
    {"-o", Takes::One, "OUT", "picture to write: .png, .svg or .pdf; - is a PNG on standard output"},
    {"--size", Takes::One, "WxH", "width and height in points, 800x450 if not given"}};

constexpr Command list[] = {
    {"sort", "FILE --column ID…", "Sorts a list as clicks on these headers do, and saves it.", sortOptions,
     runSort},
    {"table", "FILE [--json]", "Shows a list as its table displays it.", tableOptions, runTable},
    {"print", "FILE -o OUT.pdf", "Writes a list as it is printed.", printOptions, runPrint},
    {"profile", "FILE --row N -o OUT.png|svg|pdf [--size WxH]", "Draws the profile of a dive.",
     profileOptions, runProfile},
};

}  // namespace

std::span<const Command> tableCommands() {
    return list;
}

}  // namespace sargan::cli
