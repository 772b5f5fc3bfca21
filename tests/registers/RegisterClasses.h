#pragma once

#include "registers/Budget.h"
#include "registers/Compresseur.h"
#include "registers/Consommables.h"
#include "registers/DiversDocs.h"
#include "registers/Entreprises.h"
#include "registers/Epaves.h"
#include "registers/Materiel.h"
#include "registers/Rebreather.h"
#include "registers/Structures.h"

/// A register's record class, its golden archives' name, and the version that is written.
template <class R>
struct RegisterClass {
    const sargan::RecordClass<R>& cls;
    const char* stem;
    int version;
};

/// Calls `visit` with each of the nine classes.
template <class Visitor>
void forEachRegister(Visitor visit) {
    visit(RegisterClass<sargan::Epaves>{sargan::epavesClass(), "epaves", 6});
    visit(RegisterClass<sargan::Materiel>{sargan::materielClass(), "materiel", 5});
    visit(RegisterClass<sargan::Compresseur>{sargan::compresseurClass(), "compresseur", 1});
    visit(RegisterClass<sargan::Rebreather>{sargan::rebreatherClass(), "rebreather", 4});
    visit(RegisterClass<sargan::Consommables>{sargan::consommablesClass(), "consommables", 3});
    visit(RegisterClass<sargan::Budget>{sargan::budgetClass(), "budget", 1});
    visit(RegisterClass<sargan::Entreprises>{sargan::entreprisesClass(), "entreprises", 3});
    visit(RegisterClass<sargan::Structures>{sargan::structuresClass(), "structures", 0});
    visit(RegisterClass<sargan::DiversDocs>{sargan::diversDocsClass(), "documents", 1});
}
