#include "logbook/DiveToolbars.h"

#include "logbook/Carnet.h"

namespace sargan {

namespace {

/// What must be there for an item to be of use.
enum class Needs : char { Nothing, Writable, Dives, Selection, WritableSelection };

struct Item {
    const char* identifier;
    Message<> label;
    Needs needs = Needs::Nothing;
};

constexpr Item logbookItems[] = {
    {"addDive", {"Main", "Add"}, Needs::Writable},
    {"deleteDive", {"Main", "Delete"}, Needs::WritableSelection},
    {"profil", {"Carnet", "Profile"}, Needs::Selection},
    {"profilData", {"Carnet", "Profile datas"}, Needs::Selection},
    {"importUDCF", {"Carnet", "Import UDCF"}, Needs::Writable},
    {"importUDDF", {"Carnet", "Import UDDF"}, Needs::Writable},
    {"synthese", {"Main", "Synthesis card"}, Needs::Dives},
    {"statistics", {"Carnet", "Statistics"}},
    {"rechercher", {"Carnet", "Find"}},
};

constexpr Item editItems[] = {
    {"profil", {"Carnet", "Profile"}, Needs::Selection},
    {"profilData", {"Carnet", "Profile datas"}, Needs::Selection},
    {"blankFields", {"Main", "Erase"}, Needs::Writable},
    {"addDiveToList", {"Interface", "Store", "Store"}, Needs::Writable},
};

bool isMet(Needs needs, const Carnet& carnet) {
    const bool selected = carnet.selectedRow() >= 0;
    switch (needs) {
        case Needs::Nothing:
            return true;
        case Needs::Writable:
            return !carnet.isReadOnly();
        case Needs::Dives:
            return carnet.count() > 0;
        case Needs::Selection:
            return selected;
        case Needs::WritableSelection:
            return selected && !carnet.isReadOnly();
    }
    return true;
}

ToolbarState toolbar(const char* identifier, std::span<const Item> items, const Carnet& carnet) {
    ToolbarState bar{QString::fromLatin1(identifier), {}};
    for (const Item& item : items)
        bar.items.append({QString::fromLatin1(item.identifier), item.label, isMet(item.needs, carnet)});
    return bar;
}

}  // namespace

QList<ToolbarState> diveToolbars(const Carnet& carnet) {
    return {toolbar("tableViewToolbar", logbookItems, carnet),
            toolbar("editWindowToolbar", editItems, carnet)};
}

bool validateToolbarItem(const Carnet& carnet, const QString& identifier) {
    for (const Item& item : logbookItems)
        if (identifier == QLatin1String(item.identifier)) return isMet(item.needs, carnet);
    for (const Item& item : editItems)
        if (identifier == QLatin1String(item.identifier)) return isMet(item.needs, carnet);
    return true;
}

}  // namespace sargan
