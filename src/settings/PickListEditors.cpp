#include "settings/PickListEditors.h"

#include <QString>

namespace sargan {

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

constexpr EditedList listSac[] = {
    {"sac de plongee", "addSacItem", "deleteSacItem", "sacItemField", "sacItemCountField", ui("Dive bag")},
};
constexpr EditedList listLieu[] = {
    {"lieux", "addLieu", "deleteLieu", "lieuField", "lieuCountField", ui("Places")},
};
constexpr EditedList listSite[] = {
    {"sites", "addSite", "deleteSite", "siteField", "siteCountField", ui("Dive sites")},
};
constexpr EditedList listPays[] = {
    {"pays", "addPays", "deletePays", "paysField", "paysCountField", ui("Countries")},
    {"countryCode", "addCountryCode", "deleteCountryCode", "countryCodeField", "countryCodeCountField",
     ui("Country codes")},
};
constexpr EditedList listPalanquee[] = {
    {"partenaires", "addPalanquee", "deletePalanquee", "palanqueeField", "palanqueeCountField",
     ui("Buddies")},
};
constexpr EditedList listEpaves[] = {
    {"epaves", "addEpave", "deleteWreck", "epaveField", "epaveCountField", ui("Wrecks")},
};
constexpr EditedList listStructures[] = {
    {"structures", "addStructure", "deleteStructure", "structureField", "structureCountField",
     ui("Clubs and dive centres")},
};
constexpr EditedList listOrdi[] = {
    {"ordinateurs", "addOrdi", "deleteOrdi", "ordiField", "ordiCountField", ui("Dive computers")},
};
constexpr EditedList listTypesMatos[] = {
    {"type materiel", "addTypesMatos", "deleteTypesMatos", "typesMatosField", "typesMatosCountField",
     ui("Equipment types")},
};
constexpr EditedList listMagasinsMatos[] = {
    {"magasins", "addMagasinMatos", "deleteMagasinMatos", "magasinMatosField", "magasinMatosCountField",
     ui("Shops")},
};
constexpr EditedList listMarques[] = {
    {"fabricants", "addMarque", "deleteMarque", "marqueField", "marqueCountField", ui("Makers")},
};
constexpr EditedList listTankMakers[] = {
    {"tankMakers", "addTankMaker", "deleteTankMaker", "tankMakerField", "tankMakerCountField",
     ui("Tank makers")},
};
constexpr EditedList listPrestation[] = {
    {"prestations", "addPrestation", "deletePrestation", "prestationField", "prestationCountField",
     ui("Services")},
};
constexpr EditedList listActivite[] = {
    {"activite", "addActivite", "deleteActivite", "activiteField", "activiteCountField",
     ui("Activities of firms")},
};
constexpr EditedList listTypeEpave[] = {
    {"type epave", "addTypeEpave", "deleteTypeEpave", "typeEpaveField", "typeEpaveCountField",
     ui("Wreck types")},
};
constexpr EditedList listNaufrage[] = {
    {"cause naufrage", "addCauseNaufrage", "deleteCauseNaufrage", "causeNaufrageField",
     "causeNaufrageCountField", ui("Causes of sinking")},
};

constexpr PickListEditorSpec editors[] = {
    {"ComboSacController", "showSacWindow", "ComboSacDePlongee", "ComboSacDePlongee", false, listSac,
     ui("Dive bag")},
    {"ComboLieuController", "showLieuWindow", "ComboLieu", "ComboLieu", false, listLieu, ui("Places")},
    {"ComboSiteController", "showSiteWindow", "ComboSite", "ComboBoxes", false, listSite, ui("Dive sites")},
    {"ComboPaysController", "showPaysWindow", "ComboPays", "ComboPays", false, listPays, ui("Countries")},
    {"ComboPalanqueeController", "showPalanqueeWindow", "ComboPalanquee", "ComboPalanquee", false,
     listPalanquee, ui("Buddies")},
    {"ComboEpavesController", "showEpaveWindow", "ComboEpaves", "ComboEpaves", false, listEpaves,
     ui("Wrecks")},
    {"ComboStructuresController", "showStructureWindow", "ComboStructures", "ComboStructures", false,
     listStructures, ui("Clubs and dive centres")},
    {"ComboOrdiController", "showOrdiWindow", "ComboOrdi", "ComboOrdi", false, listOrdi,
     ui("Dive computers")},
    {"ComboTypesMatosController", "showTypesMatosWindow", "ComboTypesMatos", "ComboTypesMatos", true,
     listTypesMatos, ui("Equipment types")},
    {"ComboMagasinsMatosController", "showMagasinsWindow", "ComboMagasinsMatos", "ComboMagasinsMatos", true,
     listMagasinsMatos, ui("Shops")},
    {"ComboMarquesController", "showMarquesWindow", "ComboMarques", "ComboMarques", true, listMarques,
     ui("Makers")},
    {"ComboTankMakersController", "showTankMakerWindow", "ComboTankMakers", "ComboTankMaker", true,
     listTankMakers, ui("Tank makers")},
    {"ComboPrestationController", "showPrestationWindow", "ComboPrestation", "ComboPrestation", true,
     listPrestation, ui("Services")},
    {"ComboActiviteController", "showActiviteWindow", "ComboActivite", "ComboActivite", true, listActivite,
     ui("Activities of firms")},
    {"ComboTypeEpaveController", "showTypeEpaveWindow", "ComboTypeEpave", "ComboTypeEpave", true,
     listTypeEpave, ui("Wreck types")},
    {"ComboNaufrageController", "showNaufrageWindow", "ComboNaufrage", "ComboNaufrage", true, listNaufrage,
     ui("Causes of sinking")},
};

}  // namespace

std::span<const PickListEditorSpec> pickListEditors() {
    return editors;
}

const PickListEditorSpec* editorOfList(QStringView key) {
    for (const PickListEditorSpec& editor : editors)
        for (const EditedList& list : editor.lists)
            if (key == QLatin1String(list.key)) return &editor;
    return nullptr;
}

const PickListEditorSpec* findPickListEditor(QStringView name) {
    for (const PickListEditorSpec& editor : editors)
        if (name == QLatin1String(editor.menuAction) || name == QLatin1String(editor.layout)) return &editor;
    return nullptr;
}

}  // namespace sargan
