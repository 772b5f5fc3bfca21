#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>
#include <cstdio>

#include "cli/Command.h"
#include "cli/FormJson.h"
#include "cli/Session.h"
#include "settings/Colors.h"
#include "settings/ComboController.h"
#include "settings/PreferenceTable.h"
#include "settings/Preferences.h"

namespace sargan::cli {

namespace {

/// Any JSON value on one line, or over several when it has parts.
void printValue(const QJsonValue& value) {
    if (value.isObject() || value.isArray()) return print(value);
    const QByteArray inBrackets =
        QJsonDocument(QJsonArray{value.isUndefined() ? QJsonValue() : value}).toJson(QJsonDocument::Compact);
    print(QString::fromUtf8(inBrackets.mid(1, inBrackets.size() - 2)));
}

/// A value as a person writes it: JSON, or a text without quotes.
QJsonValue writtenValue(const QString& word) {
    QJsonParseError error;
    const QJsonDocument whole = QJsonDocument::fromJson('[' + word.toUtf8() + ']', &error);
    if (error.error == QJsonParseError::NoError && whole.array().size() == 1) return whole.array().first();
    if (word.startsWith(u'{') || word.startsWith(u'[') || word.startsWith(u'"'))
        throw UsageError(QStringLiteral("\"%1\" is no JSON value (%2)").arg(word, error.errorString()));
    return word;
}

QJsonValue valueToWrite(const QString& key, const QString& word) {
    const QJsonValue value = writtenValue(word);
    if (value.isNull())
        throw UsageError(QStringLiteral("null cannot be stored; defaults delete removes a value"));
    if (!isColorKey(key) || !value.isString()) return value;
    const auto color = writtenColor(value.toString());
    if (color) return *color;
    throw UsageError(
        QStringLiteral("\"%1\" takes a colour such as \"rgba(0, 0.5, 1, 1)\", not \"%2\"").arg(key, word));
}

void failIfNotStored(const UserDefaults& defaults) {
    if (!defaults.problem().isEmpty()) throw DocumentError(defaults.problem());
}

void listDefaults(const UserDefaults& defaults) {
    QJsonObject all;
    const QStringList keys = defaults.keys();
    for (const QString& key : keys) all.insert(key, shownColor(defaults.value(key)));
    print(QJsonValue(all));
}

void runDefaults(Session& session, const Arguments& arguments) {
    UserDefaults& defaults = session.desk().defaults;
    const QString what = arguments.at(0, "list, read, write or delete");
    if (what == QLatin1String("list")) {
        arguments.atMost(1);
        return listDefaults(defaults);
    }
    const QString key = arguments.at(1, "KEY");
    if (what == QLatin1String("read")) {
        arguments.atMost(2);
        printValue(shownColor(defaults.value(key)));
    } else if (what == QLatin1String("write")) {
        arguments.atMost(3);
        const QJsonValue value = valueToWrite(key, arguments.at(2, "VALUE"));
        if (defaults.stored(key) == value) return;
        defaults.store(key, value);
        failIfNotStored(defaults);
    } else if (what == QLatin1String("delete")) {
        arguments.atMost(2);
        if (defaults.stored(key).isUndefined()) return;
        defaults.remove(key);
        failIfNotStored(defaults);
    } else {
        throw UsageError(QStringLiteral("defaults can list, read, write and delete, not \"%1\"").arg(what));
    }
}

int listIn(const PickListEditorSpec& spec, const QString& key) {
    int list = 0;
    while (key != QLatin1String(spec.lists[std::size_t(list)].key)) ++list;
    return list;
}

QString knownLists() {
    QStringList keys;
    for (const PickListEditorSpec& editor : pickListEditors())
        for (const EditedList& list : editor.lists)
            keys << QStringLiteral("\"%1\"").arg(QLatin1String(list.key));
    return keys.join(QStringLiteral(", "));
}

/// Every row with one of these texts, as a person would select them all.
QList<qsizetype> rowsWith(const QStringList& entries, const QStringList& texts) {
    const QSet<QString> wanted(texts.begin(), texts.end());
    QList<qsizetype> rows;
    for (qsizetype row = 0; row < entries.size(); ++row)
        if (wanted.contains(entries[row])) rows << row;
    return rows;
}

void editList(ComboController& editor, int list, const Arguments& arguments) {
    const QString what = arguments.positional().value(1);
    const EditedList& edited = editor.spec().lists[std::size_t(list)];
    if (what == QLatin1String("add")) {
        arguments.atMost(3);
        editor.form().setText(ControlName{edited.entryField}, arguments.at(2, "TEXT"));
        editor.form().press(QLatin1String(edited.addAction));
    } else if (what == QLatin1String("delete")) {
        arguments.at(2, "TEXT");
        editor.select(list, rowsWith(editor.entries(list), arguments.positional().mid(2)));
        editor.form().press(QLatin1String(edited.deleteAction));
    } else {
        throw UsageError(QStringLiteral("a pick list can add and delete, not \"%1\"").arg(what));
    }
}

void runPickList(Session& session, const Arguments& arguments) {
    const QString key = arguments.at(0, "KEY");
    const PickListEditorSpec* spec = editorOfList(key);
    if (!spec)
        throw UsageError(QStringLiteral("there is no pick list \"%1\"; there are %2").arg(key, knownLists()));
    ComboController editor(*spec, session.desk());
    editor.prepare();
    const int list = listIn(*spec, key);
    const QJsonValue before = session.desk().defaults.stored(key);
    if (arguments.positional().size() > 1) editList(editor, list, arguments);
    if (session.desk().defaults.stored(key) != before) failIfNotStored(session.desk().defaults);
    const QStringList entries = editor.entries(list);
    if (arguments.has("--json")) return print(QJsonValue(QJsonArray::fromStringList(entries)));
    for (const QString& entry : entries) print(entry);
    print(editor.form().text(ControlName{spec->lists[std::size_t(list)].countField}));
}

/// So that a slip in the last word leaves the settings as they were.
void checkWords(Session& session, const Preferences& window, const Arguments& arguments) {
    Form trial(preferenceControls());
    session.fill(trial, arguments.assignments(0), {});
    const QStringList known = window.form().actionNames();
    for (const QString& action : arguments.all("--press"))
        if (!known.contains(action)) throw UsageError(UnknownControlError(action).sentence());
}

void printControls(const Form& form, const Strings& strings) {
    for (int control = 0; control < form.count(); ++control) {
        const bool isWell = form.spec(control).kind == ControlKind::Color;
        print(QStringLiteral("%1: %2").arg(
            QLatin1String(form.spec(control).name),
            isWell ? colorToJson(form.state(control).color).toString() : form.shownText(control, strings)));
    }
}

void runPreferences(Session& session, const Arguments& arguments) {
    Desk& desk = session.desk();
    Preferences window(desk);
    checkWords(session, window, arguments);
    desk.notifications.onPost = [](const QString& name) {
        std::fprintf(stderr, "post %s\n", qUtf8Printable(name));
    };
    const quint64 before = desk.defaults.version();
    session.fill(window.form(), arguments.assignments(0), arguments.all("--press"));
    desk.notifications.onPost = nullptr;
    if (desk.defaults.version() != before) failIfNotStored(desk.defaults);
    if (arguments.has("--json"))
        return print(
            QJsonValue(QJsonObject{{QStringLiteral("controls"), formToJson(window.form(), desk.strings)}}));
    printControls(window.form(), desk.strings);
}

constexpr OptionSpec defaultsOptions[] = {
    {"--json", Takes::Nothing, "", "values are printed as JSON with and without it"}};
constexpr OptionSpec pickListOptions[] = {{"--json", Takes::Nothing, "", "as one JSON array"}};
constexpr OptionSpec preferencesOptions[] = {
    {"--press", Takes::One, "ACTION",
     "press this after filling, for example savePrefs or resetPreferences; repeatable"},
    {"--json", Takes::Nothing, "", "as one JSON value"}};

constexpr Command list[] = {
    {"defaults", "list | read KEY | write KEY VALUE | delete KEY",
     "Shows and changes the settings, as JSON values; a colour is \"rgba(r, g, b, a)\".", defaultsOptions,
     runDefaults},
    {"picklist", "KEY [add TEXT | delete TEXT…] [--json]",
     "Shows and changes a list of words that combo boxes offer, as its editor does.", pickListOptions,
     runPickList},
    {"preferences", "[control=value…] [--press ACTION…] [--json]",
     "Shows and changes the preferences window; what it broadcasts is printed as \"post NAME\".",
     preferencesOptions, runPreferences},
};

}  // namespace

std::span<const Command> settingsCommands() {
    return list;
}

}  // namespace sargan::cli
