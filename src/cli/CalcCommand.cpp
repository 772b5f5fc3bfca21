#include <QJsonArray>
#include <cstdio>

#include "calculators/Calculator.h"
#include "cli/Command.h"
#include "cli/FormJson.h"
#include "cli/Session.h"

namespace sargan::cli {

namespace {

const char* kindName(const ControlSpec& spec) {
    switch (spec.kind) {
        case ControlKind::Number:
            return "number";
        case ControlKind::PopUp:
            return spec.spread ? "matrix" : "pop-up";
        case ControlKind::Caption:
            return "result";
        default:
            return "tab view";
    }
}

QJsonArray itemsOf(const CalculatorSpec& calculator, const ControlSpec& control, const Strings& strings) {
    QJsonArray items;
    for (const MenuItem& item : control.menu)
        items.append(QJsonObject{{QStringLiteral("tag"), item.tag},
                                 {QStringLiteral("text"), strings.text(item.words)}});
    if (QLatin1String(control.name) == QLatin1String(calculator.paneControl))
        for (const LayoutPane& pane : calculator.layout.panes)
            items.append(QJsonObject{{QStringLiteral("id"), QLatin1String(pane.id)},
                                     {QStringLiteral("text"), strings.text(pane.label)}});
    return items;
}

QString unitOf(const CalculatorSpec& calculator, const char* control, const Strings& strings) {
    for (const LayoutPane& pane : calculator.layout.panes)
        for (const LayoutSection& section : pane.sections)
            for (const LayoutRow& row : section.rows)
                for (const LayoutItem& item : row.items)
                    if (item.control && qstrcmp(item.control, control) == 0 && item.unit.key)
                        return strings.text(item.unit);
    return {};
}

QJsonObject described(const CalculatorSpec& calculator, const Strings& strings) {
    QJsonArray controls;
    for (const ControlSpec& control : calculator.controls) {
        QJsonObject one{{QStringLiteral("name"), QLatin1String(control.name)},
                        {QStringLiteral("kind"), QLatin1String(kindName(control))}};
        const QString unit = unitOf(calculator, control.name, strings);
        if (!unit.isEmpty()) one.insert(QStringLiteral("unit"), unit);
        const QJsonArray items = itemsOf(calculator, control, strings);
        if (!items.isEmpty()) one.insert(QStringLiteral("items"), items);
        controls.append(one);
    }
    QJsonArray actions;
    for (const char* action : calculator.actions) actions.append(QLatin1String(action));
    return {{QStringLiteral("window"), QLatin1String(calculator.layout.name)},
            {QStringLiteral("opens"), QLatin1String(calculator.action)},
            {QStringLiteral("title"), strings.text(calculator.layout.title)},
            {QStringLiteral("controller"), QLatin1String(calculator.controllerClass)},
            {QStringLiteral("actions"), actions},
            {QStringLiteral("controls"), controls}};
}

/// "  ppO2PopUp      pop-up  0: 1.2 bar, 1: 1.3 bar"
QString controlLine(const QJsonObject& control) {
    QStringList items;
    for (const QJsonValue& item : control.value(QLatin1String("items")).toArray()) {
        const QJsonValue tag = item[QLatin1String("tag")];
        const QString value =
            tag.isDouble() ? QString::number(tag.toInt()) : item[QLatin1String("id")].toString();
        items << value + QStringLiteral(": ") + item[QLatin1String("text")].toString();
    }
    const QString line =
        QStringLiteral("  %1  %2  %3%4")
            .arg(control.value(QLatin1String("name")).toString(), -26)
            .arg(control.value(QLatin1String("kind")).toString(), -8)
            .arg(control.value(QLatin1String("unit")).toString(), items.join(QStringLiteral(", ")));
    return QString(line).trimmed().prepend(QStringLiteral("  "));
}

void list(const Strings& strings, bool asJson) {
    QJsonArray windows;
    for (const CalculatorSpec& calculator : calculatorSpecs()) windows.append(described(calculator, strings));
    if (asJson) return print(QJsonValue(windows));
    for (const QJsonValue& window : windows) {
        print(QStringLiteral("%1: %2").arg(window[QLatin1String("window")].toString(),
                                           window[QLatin1String("title")].toString()));
        for (const QJsonValue& action : window[QLatin1String("actions")].toArray())
            print(QStringLiteral("  --action ") + action.toString());
        for (const QJsonValue& control : window[QLatin1String("controls")].toArray())
            print(controlLine(control.toObject()));
    }
}

const CalculatorSpec& calculatorNamed(const QString& name) {
    if (const CalculatorSpec* found = findCalculator(name)) return *found;
    throw UsageError(QStringLiteral("there is no calculator \"%1\"; sargan calc lists them").arg(name));
}

void printResults(const Calculator& calculator, bool asJson) {
    QJsonObject results;
    for (const char* name : calculator.spec().results) {
        const ControlState& state = calculator.form().state(calculator.form()[ControlName{name}]);
        if (!asJson) print(QStringLiteral("%1: %2").arg(QLatin1String(name), state.text));
        results.insert(QLatin1String(name),
                       QJsonObject{{QStringLiteral("text"), state.text},
                                   {QStringLiteral("color"), textColorToJson(state.color)}});
    }
    if (asJson) print(QJsonValue(results));
}

void runCalc(Session& session, const Arguments& arguments) {
    const bool asJson = arguments.has("--json");
    if (arguments.positional().isEmpty()) return list(session.desk().strings, asJson);
    // Beside JSON, the log goes where it is not part of the value.
    if (arguments.has("--log"))
        session.desk().log = Log([asJson](const QString& line) {
            std::fprintf(asJson ? stderr : stdout, "%s\n", qUtf8Printable(line));
        });
    const CalculatorSpec& spec = calculatorNamed(arguments.at(0, "WINDOW"));
    const QStringList action{arguments.has("--action") ? arguments.one("--action")
                                                       : QString::fromLatin1(spec.actions.first())};
    Calculator calculator(spec, session.desk());
    session.fill(calculator.form(), arguments.assignments(1), action);
    for (const QStringList& words : arguments.occurrences("--then"))
        session.fill(calculator.form(), Arguments::assignments(words), action);
    printResults(calculator, asJson);
}

constexpr OptionSpec options[] = {
    {"--action", Takes::One, "NAME", "press this action instead of the window's first one"},
    {"--json", Takes::Nothing, "", "as one JSON value: text and colour of every result"},
    {"--log", Takes::Nothing, "", "print the system-log lines too; with --json on standard error"},
    {"--then", Takes::Words, "control=value…", "fill these too and press once more; repeatable"},
};

constexpr Command commandList[] = {
    {"calc", "[WINDOW control=value… [--then control=value…]]",
     "Presses a calculator's action and prints its results; without WINDOW lists the calculators.", options,
     runCalc},
};

}  // namespace

std::span<const Command> calculatorCommands() {
    return commandList;
}

}  // namespace sargan::cli
