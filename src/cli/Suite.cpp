#include "cli/Suite.h"

#include "platform/document/PlainDocument.h"

namespace sargan {

SaveTypes makeSaveTypes() { return {}; }

DocumentKinds makeDocumentKinds(const SaveTypes& saveTypes) {
    const auto logbook = [&saveTypes](const DocumentKind& kind, Desk& desk) -> std::unique_ptr<Document> {
        return std::make_unique<Carnet>(kind, desk, saveTypes);
    };
    const auto plain = &PlainDocument::create;
    return DocumentKinds({
        {"Carnet de plongee", true, "Carnet", "Plongee", "carnet", "newCarnetDocumentMenuAction", logbook},
        {"Divers documents", true, "DiversDocuments", "DiversDocs", "documents", "newDocumentDocumentMenuAction", plain},
        {"Materiel", true, "InvMateriel", "Materiel", "materiel", "newMaterielDocumentMenuAction", plain},
        {"Rebreather", true, "RebreatherServ", "Rebreather", "rebreather", "newRebreatherDocumentMenuAction", plain},
        {"Consommables", false, "InvConso", "Consommables", "consommables", "newConsommablesDocumentMenuAction", plain},
        {"Compresseur", false, "MaintComp", "Compresseur", "compresseur", "newCompresseurDocumentMenuAction", plain},
        {"Epaves", false, "RepEpaves", "Epaves", "epaves", "newEpavesDocumentMenuAction", plain},
        {"Budget", false, "PreviBudget", "Budget", "budget", "newBudgetDocumentMenuAction", plain},
        {"Entreprises", false, "AdressesEts", "Entreprises", "entreprises", "newEntrepriseDocumentMenuAction", plain},
        {"Structures", false, "AdressesStruct", "Structures", "structures", "newStructureDocumentMenuAction", plain},
    });
}

}  // namespace sargan
