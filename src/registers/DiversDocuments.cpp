#include "registers/DiversDocuments.h"

#include "registers/RegisterColors.h"
#include "registers/RegisterDocument.h"
#include "registers/RegisterLayout.h"

namespace sargan {

using namespace registerlayout;
using namespace registerwords;

namespace {

using F = DiversDocsFields;

constexpr MenuItem paperItems[] = {
    {0, {"Documents", "TableView attestation"}}, {1, {"Documents", "TableView certification"}},
    {2, {"Documents", "TableView certifMed"}},   {3, {"Documents", "TableView facture"}},
    {4, {"Documents", "TableView licence"}},     {5, {"Documents", "TableView autre"}},
};

std::vector<RegisterControl<DiversDocs>> controls() {
    using enum ControlKind;
    return {
        {{.name = "typePopUp", .kind = PopUp, .menu = paperItems}, &F::type},
        {{.name = "titreField", .kind = Text}, &F::titre},
        {{.name = "emetteurField", .kind = Text}, &F::emetteur},
        {{.name = "dateField", .kind = Date}, &F::date},
        {{.name = "renouvelerSwitch", .kind = Switch}, &F::renouveler},
        {{.name = "dateRenouvellementField", .kind = Date}, &F::dateRenouvellement},
        {{.name = "photocopyWell", .kind = Image}, &F::photocopy},
        {{.name = "notesField", .kind = Area}, &F::notes},
    };
}

LayoutPane paperPage() {
    const LayoutSection paper{
        ui("Paper"),
        {row({field("typePopUp", ui("Kind"))}), row({field("titreField", ui("Title"))}),
         row({field("emetteurField", ui("Issued by"))}), row({sized("dateField", ui("Issued on"), 11)})}};
    const LayoutSection renewal{ui("Renewal"),
                                {row({field("renouvelerSwitch", ui("Must be renewed"))}),
                                 row({sized("dateRenouvellementField", ui("Renewal on"), 11)})}};
    return {"paperPage", ui("Paper"), "general", {paper, renewal}};
}

LayoutPane copyPage() {
    return {
        "copyPage", ui("Scanned copy"), "picture", {{ui("Scanned copy"), {row({field("photocopyWell")})}}}};
}

LayoutPane notesPage() {
    return {"notesPage", ui("Remarks"), "notes", {{ui("Remarks"), {row({field("notesField")})}}}};
}

std::vector<RegisterColumn<DiversDocs>> columns() {
    return {
        {&F::type, ui("Kind"), 18, toLeft,
         [](const DiversDocs& paper, const Desk& desk) {
             return word(paperItems, paper.type(), desk.strings, QString::number(paper.type()));
         }},
        {&F::titre, ui("Title"), 24, toLeft, nullptr, registercolor::brown},
        {&F::emetteur, ui("Issued by"), 18},
        {&F::date, ui("Issued on"), 10, centred},
        {&F::dateRenouvellement, ui("Renewal on"), 10, centred},
    };
}

}  // namespace

const WindowLayout& diversDocumentsLayout() {
    static const WindowLayout layout{"docEditWindow", ui("Paper"), {paperPage(), copyPage(), notesPage()}};
    return layout;
}

const RegisterDescription<DiversDocs>& diversDocuments() {
    static const RegisterDescription<DiversDocs> description{
        .design =
            {
                .nibName = "Documents",
                .operations = {.add = "addDoc",
                               .update = "updateDoc",
                               .erase = "deleteDoc",
                               .previous = "prevDoc",
                               .next = "nextDoc",
                               .edit = "editDocWindow",
                               .goPage = "goDocView_",
                               .synthesis = "inventaireDocWindow",
                               .print = "printDocsList"},
                // Of the items that this bar could have, only one is in it from the start.
                .listBar = {"docTableViewWindowToolbar", {"deleteDoc"}},
                .editBar = {"docEditWindowToolbar", {"addDoc", "blankFields", "synthese"}},
                .needRecords = {"deleteDoc", "synthese"},
                .count = {oneCard, cards},
                .layout = diversDocumentsLayout,
                .blank = {},
                .blankClearsSelection = false,
            },
        .recordClass = diversDocsClass,
        .controls = controls(),
        .columns = columns(),
        .date = &F::date,
    };
    return description;
}

}  // namespace sargan
