#include "cli/Suite.h"

#include "interchange/Formats.h"
#include "registers/AdressesEts.h"
#include "registers/AdressesStruct.h"
#include "registers/DiversDocuments.h"
#include "registers/InvConso.h"
#include "registers/InvMateriel.h"
#include "registers/MaintComp.h"
#include "registers/PreviBudget.h"
#include "registers/RebreatherServ.h"
#include "registers/RegisterDocument.h"
#include "registers/RepEpaves.h"

namespace sargan {

SaveTypes makeSaveTypes() {
    SaveTypes types;
    for (const ExportFormat& format : exportFormats())
        types.emplace(QString::fromLatin1(format.typeName), format.write);
    return types;
}

DocumentKinds makeDocumentKinds(const SaveTypes& saveTypes) {
    const auto logbook = [&saveTypes](const DocumentKind& kind, Desk& desk) -> std::unique_ptr<Document> {
        return std::make_unique<Carnet>(kind, desk, saveTypes);
    };
    return DocumentKinds({
        {"Carnet de plongee", true, "Carnet", "Plongee", "carnet", "newCarnetDocumentMenuAction", logbook},
        {"Divers documents", true, "DiversDocuments", "DiversDocs", "documents", "newDocumentDocumentMenuAction",
         &createRegister<&diversDocuments>},
        {"Materiel", true, "InvMateriel", "Materiel", "materiel", "newMaterielDocumentMenuAction",
         &createRegister<&invMateriel>},
        {"Rebreather", true, "RebreatherServ", "Rebreather", "rebreather", "newRebreatherDocumentMenuAction",
         &createRegister<&rebreatherServ>},
        {"Consommables", false, "InvConso", "Consommables", "consommables", "newConsommablesDocumentMenuAction",
         &createRegister<&invConso>},
        {"Compresseur", false, "MaintComp", "Compresseur", "compresseur", "newCompresseurDocumentMenuAction",
         &createRegister<&maintComp>},
        {"Epaves", false, "RepEpaves", "Epaves", "epaves", "newEpavesDocumentMenuAction",
         &createRegister<&repEpaves>},
        {"Budget", false, "PreviBudget", "Budget", "budget", "newBudgetDocumentMenuAction",
         &createRegister<&previBudget>},
        {"Entreprises", false, "AdressesEts", "Entreprises", "entreprises", "newEntrepriseDocumentMenuAction",
         &createRegister<&adressesEts>},
        {"Structures", false, "AdressesStruct", "Structures", "structures", "newStructureDocumentMenuAction",
         &createRegister<&adressesStruct>},
    });
}

}  // namespace sargan
