#include "registers/RegisterToolbars.h"

namespace sargan {

namespace {

/// What is made for an identifier, whatever the register; null for one that nothing is made for.
const ToolbarLook* lookOf(const RegisterDesign& design, const char* identifier) {
    static constexpr ToolbarLook add{{"Main", "Add"}, "ajouterPl", {"Main", "Tip add"}};
    static constexpr ToolbarLook erase{{"Main", "Delete"}, "supprimerPl", {"Main", "Tip delete"}};
    static constexpr ToolbarItem common[] = {
        {"saveDocument", {{"Main", "Save"}, "enregistrer", {"Main", "Tip save"}}},
        {"imprimer", {{"Main", "Print"}, "imprimante", {"Main", "Tip print"}}},
        {"synthese", {{"Main", "Synthesis card"}, "texte", {"Main", "Tip synthesis card"}}},
        {"blankFields", {{"Main", "Erase"}, "raz", {"Main", "Tip erase"}}},
    };
    if (qstrcmp(identifier, design.operations.add) == 0) return &add;
    if (qstrcmp(identifier, design.operations.erase) == 0) return &erase;
    for (const ToolbarItem& item : common)
        if (qstrcmp(identifier, item.identifier) == 0) return &item.look;
    return nullptr;
}

}  // namespace

QList<ToolbarItem> toolbarItems(const RegisterDesign& design, const RegisterToolbar& bar) {
    QList<ToolbarItem> items;
    for (const char* identifier : bar.items)
        if (const ToolbarLook* look = lookOf(design, identifier)) items.append({identifier, *look});
    return items;
}

QList<ToolbarState> registerToolbars(const Register& shown) {
    QList<ToolbarState> bars;
    for (const RegisterToolbar* bar : {&shown.design().listBar, &shown.design().editBar}) {
        ToolbarState state{QLatin1String(bar->identifier), {}};
        for (const ToolbarItem& item : toolbarItems(shown.design(), *bar))
            state.items.append({QLatin1String(item.identifier), item.look.label,
                                validateToolbarItem(shown, item.identifier)});
        bars.append(state);
    }
    return bars;
}

bool validateToolbarItem(const Register& shown, const char* identifier) {
    const RegisterDesign& design = shown.design();
    const bool needsSomething =
        std::any_of(design.needRecords.begin(), design.needRecords.end(),
                    [&](const char* needing) { return qstrcmp(needing, identifier) == 0; });
    if (!needsSomething) return true;
    if (design.needPickList)
        return !shown.registerDocument().desk().pickLists.list(QLatin1String(design.needPickList)).isEmpty();
    return shown.rowCount() > 0;
}

}  // namespace sargan
