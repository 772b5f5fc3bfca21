#include "settings/RegisteredDefaults.h"

#include <QJsonArray>

#include "settings/Colors.h"

namespace sargan {

namespace {

constexpr const char* onByDefault[] = {"depth time in color", "display units", "fill plot", "x minor ticks",
                                       "y minor ticks"};
constexpr const char* offByDefault[] = {"color item", "coloured theme", "low temperature in color"};

/// "stop_interval" is read by nobody: the interval lives under "stop interval", which has no default.
constexpr std::pair<const char*, const char*> textsByDefault[] = {
    {"coloured text", ""},       {"low temperature value", ""},
    {"alpha fill color", "0.5"}, {"alpha background color", "0.5"},
    {"stop_interval", "3"},
};

constexpr const char* colorsByDefault[] = {
    "low temperature color", "depth color", "time color", "plot color", "fill color",
    "background color",      "ASC color",   "SLOW color",
};

constexpr const char* registeredLists[] = {
    "lieux",         "sites",      "pays",        "countryCode", "partenaires",
    "epaves",        "structures", "ordinateurs", "type epave",  "cause naufrage",
    "type materiel", "fabricants", "tankMakers",  "magasins",    "prestations",
};

QJsonValue listValue(const PickLists& pickLists, const QString& key) {
    return QJsonArray::fromStringList(pickLists.list(key));
}

void registerPickLists(UserDefaults& defaults, PickLists& pickLists) {
    for (const char* key : registeredLists) {
        const QString name = QLatin1String(key);
        pickLists.load(name);
        defaults.registerDefault(name, listValue(pickLists, name));
    }
    pickLists.load(QStringLiteral("sac de plongee"));
    // The activities begin as a copy of the services; their own list is loaded by its editor.
    defaults.registerDefault(QStringLiteral("activite"), listValue(pickLists, QStringLiteral("prestations")));
}

}  // namespace

void registerDefaults(UserDefaults& defaults, PickLists& pickLists) {
    for (const char* key : onByDefault) defaults.registerDefault(QLatin1String(key), true);
    for (const char* key : offByDefault) defaults.registerDefault(QLatin1String(key), false);
    for (const auto& [key, text] : textsByDefault)
        defaults.registerDefault(QLatin1String(key), QLatin1String(text));
    for (const char* key : colorsByDefault) defaults.registerDefault(QLatin1String(key), undecodedColor());
    registerPickLists(defaults, pickLists);
}

}  // namespace sargan
