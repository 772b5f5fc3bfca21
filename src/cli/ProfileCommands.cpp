#include <QJsonObject>
#include <cmath>

#include "cli/Command.h"
#include "cli/Session.h"
#include "logbook/DiveProfileForm.h"
#include "platform/record/RecordJson.h"

namespace sargan::cli {

namespace {

/// The files that replace lists, by the list's place.
QList<std::pair<std::size_t, QString>> replacements(const Arguments& arguments) {
    QList<std::pair<std::size_t, QString>> files;
    for (const auto& [name, path] : Arguments::assignments(arguments.all("--replace"))) {
        const auto lists = profileLists();
        const auto found = std::ranges::find_if(
            lists, [&name = name](const ProfileList& list) { return name == QLatin1String(list.id); });
        if (found == lists.end())
            throw UsageError(
                QStringLiteral("--replace takes depth, asc, slow, ceil, surf, gaz or press, not \"%1\"")
                    .arg(name));
        files.append({std::size_t(found - lists.begin()), path});
    }
    return files;
}

void printProfile(const DiveProfileForm& profile, bool asJson) {
    QJsonObject json;
    for (const ProfileList& list : profileLists()) {
        const QString text = profile.form().text(list.text);
        const QString count = profile.form().text(list.count);
        json.insert(QLatin1String(list.id),
                    QJsonObject{{QStringLiteral("text"), text.isNull() ? QString::fromLatin1("") : text},
                                {QStringLiteral("count"), count}});
        if (asJson) continue;
        print(QStringLiteral("%1: %2").arg(QLatin1String(list.id), count));
        if (!text.isEmpty()) print(text);
    }
    if (asJson) print(QJsonValue(json));
}

void runProfileData(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const QString path = arguments.at(0, "FILE");
    const int row = arguments.number("--row");
    const auto files = replacements(arguments);
    const auto withDive = [&](Document& document, auto&& use) {
        Carnet& carnet = session.logbook(document);
        session.select(document, carnet, {row});
        DiveProfileForm profile(carnet);
        use(profile);
        printProfile(profile, arguments.has("--json"));
    };
    if (files.isEmpty()) {
        const auto document = session.read(path);
        return withDive(*document, [](DiveProfileForm&) {});
    }
    session.edit(path, [&](Document& document) {
        withDive(document, [&](DiveProfileForm& profile) {
            const auto lists = profileLists();
            for (const auto& [place, file] : files) {
                Form& form = profile.form();
                form.setText(lists[place].text, QString::fromUtf8(readFile(file)));
                form.setTag(lists[place].replace, 1);
            }
            profile.importProfil();
            if (document.isEdited()) document.save();
        });
        return false;
    });
}

void runGas(Session& session, const Arguments& arguments) {
    arguments.atMost(1);
    const auto document = session.read(arguments.at(0, "FILE"));
    Carnet& carnet = session.logbook(*document);
    session.select(*document, carnet, {arguments.number("--row")});
    const DiveFigures& figures = carnet.diveForm().figures();
    const auto text = [&](ControlName control) { return carnet.form().text(control); };
    if (!arguments.has("--json")) {
        for (const ControlName control :
             {divecontrol::deltaPressure, divecontrol::deltaPressure2, divecontrol::cns})
            print(QStringLiteral("%1: %2").arg(QLatin1String(control.text), text(control)));
        return;
    }
    print(QJsonValue(QJsonObject{
        {QStringLiteral("deltaPressureField"), text(divecontrol::deltaPressure)},
        {QStringLiteral("deltaPressure_2Field"), text(divecontrol::deltaPressure2)},
        {QStringLiteral("delta"), figures.tank.delta},
        {QStringLiteral("volume"), figures.tank.volume},
        {QStringLiteral("delta_2"), figures.secondTank.delta},
        {QStringLiteral("volume_2"), figures.secondTank.volume},
        {QStringLiteral("ppO2"), json::value(figures.ppO2)},
        {QStringLiteral("cns"), std::isfinite(figures.cns) ? QJsonValue(figures.cns) : shortest(figures.cns)},
        {QStringLiteral("cnsText"), text(divecontrol::cns)},
        {QStringLiteral("volumeConsomme"), figures.volumeConsomme}}));
}

constexpr OptionSpec profileDataOptions[] = {
    {"--row", Takes::Numbers, "N", "the dive, counted from 0"},
    {"--replace", Takes::Words, "LIST=FILE…",
     "replace lists by files of one value a line: depth, asc, slow, ceil, surf, gaz, press"},
    {"--json", Takes::Nothing, "", "as one JSON value"}};
constexpr OptionSpec gasOptions[] = {{"--row", Takes::Numbers, "N", "the dive, counted from 0"},
                                     {"--json", Takes::Nothing, "", "as one JSON value"}};

constexpr Command list[] = {
    {"profile-data", "FILE --row N [--replace LIST=FILE…] [--json]",
     "Shows the seven lists of a dive's profile as texts with their counts, or replaces them.",
     profileDataOptions, runProfileData},
    {"gas", "FILE --row N [--json]",
     "Tells the pressure and volume used of both tanks, and the oxygen clock.", gasOptions, runGas},
};

}  // namespace

std::span<const Command> profileCommands() {
    return list;
}

}  // namespace sargan::cli
