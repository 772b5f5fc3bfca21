#include "logbook/DiveColumns.h"

#include "logbook/DiveMenus.h"
#include "platform/record/Field.h"

namespace sargan {

namespace {

using Settings = DiveTableSettings;

/// A water temperature that was not recorded.
constexpr int noTemperature = -50;

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

constexpr MenuItem visibilityWords[] = {
    {0, {"Carnet", "TableView excellent"}},   {1, {"Carnet", "TableView very good"}},
    {2, {"Carnet", "TableView good"}},        {3, {"Carnet", "TableView medium"}},
    {4, {"Carnet", "TableView bad"}},         {5, {"Carnet", "TableView very bad"}},
    {6, {"Carnet", "TableView execrable"}},   {7, {"Carnet", "N/A", "N/A"}},
    {8, {"Carnet", "TableView exceptional"}},
};

constexpr MenuItem apparatusWords[] = {
    {0, {"Carnet", "OC", "OC"}},     {1, {"Carnet", "SCR", "SCR"}},   {2, {"Carnet", "mCCR", "mCCR"}},
    {3, {"Carnet", "eCCR", "eCCR"}}, {4, {"Carnet", "hCCR", "hCCR"}},
};

QString word(std::span<const MenuItem> menu, int tag, const Strings& strings) {
    for (const MenuItem& item : menu)
        if (item.tag == tag) return strings.text(item.words);
    return QString::number(tag);
}

template <const QString& (Plongee::*text)() const>
QString plain(const Plongee& dive, const Settings&, const Strings&) {
    return (dive.*text)();
}

QString number(const Plongee& dive, const Settings&, const Strings&) {
    return QString::number(dive.noPlongee());
}

QString date(const Plongee& dive, const Settings&, const Strings&) {
    const QDateTime day = dive.date().local();
    return day.isValid() ? day.toString(QStringLiteral("dd/MM/yyyy")) : QStringLiteral("--/--/----");
}

QString time(const Plongee& dive, const Settings&, const Strings&) {
    return dive.heure().local().toString(QStringLiteral("HH:mm"));
}

QString depth(const Plongee& dive, const Settings& settings, const Strings& strings) {
    const QString value = shortest(dive.profondeur());
    if (!settings.displayUnits) return value;
    if (settings.usUnits) return strings.text(Message<QString>{"Carnet", "%@ ft", "%@ ft"}, value);
    return strings.text(Message<QString>{"Carnet", "%@ m", "%@ m"}, value);
}

QString duration(const Plongee& dive, const Settings& settings, const Strings& strings) {
    if (!settings.displayUnits) return QString::number(dive.temps());
    return strings.text(Message<int>{"Carnet", "%@ '", "%@ '"}, dive.temps());
}

QString water(const Plongee& dive, const Settings& settings, const Strings& strings) {
    const int value = dive.tempEau();
    if (value == 0 || value == noTemperature) return QStringLiteral("-");
    if (!settings.displayUnits) return QString::number(value);
    if (settings.usUnits) return strings.text(Message<int>{"Carnet", "Farenheit"}, value);
    return strings.text(Message<int>{"Carnet", "Celsius"}, value);
}

QString deco(const Plongee& dive, const Settings&, const Strings& strings) {
    return word(divemenus::deco, dive.deco(), strings);
}

QString tide(const Plongee& dive, const Settings&, const Strings& strings) {
    const int coefficient = dive.coeff();
    if (dive.pmBm() == 1)
        return coefficient == 0 ? strings.text({"Carnet", "TableView high tide only"})
                                : strings.text(Message<int>{"Carnet", "TableView high tide"}, coefficient);
    if (dive.pmBm() == 2)
        return coefficient == 0 ? strings.text({"Carnet", "TableView low tide only"})
                                : strings.text(Message<int>{"Carnet", "TableView low tide"}, coefficient);
    return coefficient == 0 ? strings.text({"Carnet", "N/A", "N/A"}) : QString::number(coefficient);
}

QString visibility(const Plongee& dive, const Settings&, const Strings& strings) {
    return word(visibilityWords, dive.visibilite(), strings);
}

QString star(const Plongee& dive, const Settings&, const Strings&) {
    return dive.inoubliable() == 0 ? QString() : QStringLiteral("★");
}

/// How every list and report names a dive's gas.
QString gas(const Plongee& dive, const Settings&, const Strings& strings) {
    const int o2 = dive.o2Mix();
    if (dive.gaz() < 0 || dive.gaz() > 5) return QString::number(dive.gaz());
    if (dive.gaz() == 0) return strings.text({"Carnet", "Air"});
    if (o2 >= 100) return strings.text({"Carnet", "O2", "O2"});
    if (dive.gaz() == 1) return strings.text(Message<int>{"Carnet", "Nx %@", "Nx %@"}, o2);
    if (dive.gaz() == 3) return strings.text(Message<int>{"Carnet", "Heliox %@", "Heliox %@"}, o2);
    return strings.text(Message<int, int>{"Carnet", "Tx %@/%@", "Tx %@/%@"}, o2, dive.heMix());
}

QString apparatus(const Plongee& dive, const Settings&, const Strings& strings) {
    return word(apparatusWords, dive.rebreather(), strings);
}

constexpr Qt::Alignment toLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment toRight = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment centred = Qt::AlignCenter;

constexpr DiveColumn columns[] = {
    {"noPlongee", "column numero", true, ui("No."), 6, toRight, &number},
    {"date", "column date", true, ui("Date"), 11, centred, &date},
    {"lieu", "column lieu", true, ui("Place"), 14, toLeft, &plain<&Plongee::lieu>},
    {"site", "column site", true, ui("Site"), 19, toLeft, &plain<&Plongee::site>},
    {"heure", "column heure", true, ui("Time"), 7, centred, &time},
    {"profondeur", "column profondeur", true, ui("Depth"), 8, toRight, &depth},
    {"temps", "column temps", true, ui("Duration"), 8, toRight, &duration},
    {"tempEau", "column temp eau", true, ui("Water"), 8, toRight, &water},
    {"deco", "column deco", true, ui("Decompression"), 13, toLeft, &deco},
    {"coeff", "column coeff", true, ui("Tide"), 13, toLeft, &tide},
    {"visibilite", "column visibilite", true, ui("Visibility"), 11, toLeft, &visibility},
    // The underscore is this setting's own: no preference writes it.
    {"epaves", "column_epave", false, ui("Wrecks"), 13, toLeft, &plain<&Plongee::epaves>},
    {"inoubliable", "column inoubliable", true, ui("Mark"), 3, centred, &star},
    {"gaz", "column gaz", false, ui("Gas"), 10, toLeft, &gas},
    {"rebreather", "column scaph", false, ui("Apparatus"), 6, toLeft, &apparatus},
};

}  // namespace

std::span<const DiveColumn> diveColumns() {
    return columns;
}

const DiveColumn& diveColumn(QStringView identifier) {
    for (const DiveColumn& column : columns)
        if (identifier == QLatin1String(column.identifier)) return column;
    throw UnknownKeyError(identifier.toString(), QStringLiteral("the logbook's table"));
}

}  // namespace sargan
