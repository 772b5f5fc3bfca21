#include "logbook/DiveColumns.h"

#include "logbook/DiveMenus.h"

namespace sargan {

namespace {

/// A water temperature that was not recorded.
constexpr int noTemperature = -50;

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

QString word(std::span<const MenuItem> menu, int tag, const Strings& strings) {
    for (const MenuItem& item : menu)
        if (item.tag == tag) return strings.text(item.words);
    return QString::number(tag);
}

QString number(const Plongee& dive, const Strings&) {
    return QString::number(dive.noPlongee());
}

QString date(const Plongee& dive, const Strings&) {
    const QDateTime day = dive.date().local();
    return day.isValid() ? day.toString(QStringLiteral("dd/MM/yyyy")) : QStringLiteral("--/--/----");
}

QString time(const Plongee& dive, const Strings&) {
    return dive.heure().local().toString(QStringLiteral("HH:mm"));
}

QString depth(const Plongee& dive, const Strings&) {
    return shortest(dive.profondeur()) + QStringLiteral(" m");
}

QString duration(const Plongee& dive, const Strings&) {
    return QString::number(dive.temps()) + QStringLiteral(" '");
}

QString water(const Plongee& dive, const Strings&) {
    if (dive.tempEau() == noTemperature) return QStringLiteral("-");
    return QString::number(dive.tempEau()) + QStringLiteral(" °C");
}

QString deco(const Plongee& dive, const Strings& strings) {
    return word(divemenus::deco, dive.deco(), strings);
}

QString visibility(const Plongee& dive, const Strings& strings) {
    return word(divemenus::visibility, dive.visibilite(), strings);
}

constexpr Qt::Alignment toLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment toRight = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment centred = Qt::AlignCenter;

constexpr DiveColumn columns[] = {
    {"noPlongee", ui("No."), 6, toRight, &number},
    {"date", ui("Date"), 11, centred, &date},
    {"heure", ui("Time"), 7, centred, &time},
    {"lieu", ui("Place"), 14, toLeft, [](const Plongee& dive, const Strings&) { return dive.lieu(); }},
    {"site", ui("Site"), 19, toLeft, [](const Plongee& dive, const Strings&) { return dive.site(); }},
    {"profondeur", ui("Depth"), 8, toRight, &depth},
    {"temps", ui("Duration"), 8, toRight, &duration},
    {"tempEau", ui("Water"), 8, toRight, &water},
    {"deco", ui("Decompression"), 13, toLeft, &deco},
    {"visibilite", ui("Visibility"), 11, toLeft, &visibility},
    {"epaves", ui("Wrecks"), 13, toLeft, [](const Plongee& dive, const Strings&) { return dive.epaves(); }},
    {"partenaires", ui("Buddies"), 20, toLeft,
     [](const Plongee& dive, const Strings&) { return dive.partenaires(); }},
};

}  // namespace

std::span<const DiveColumn> diveColumns() {
    return columns;
}

}  // namespace sargan
