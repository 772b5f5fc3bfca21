#include "registers/AdressesStruct.h"
#include "registers/OpeningHours.h"

namespace sargan {

using namespace registerlayout;

namespace {

constexpr MenuItem kindItems[] = {{0, ui("Club")},
                                  {1, ui("Dive centre")},
                                  {2, ui("Diving school")},
                                  {3, ui("Dive boat")},
                                  {4, ui("Other kind")}};

LayoutPane clubPage() {
    const LayoutSection club{
        ui("Club"),
        {row({field("nomField", ui("Name"))}), row({field("typePopUp", ui("Kind"))}),
         row({field("affiliationField", ui("Affiliation"))}), row({field("gerantField", ui("Manager"))})}};
    const LayoutSection address{
        ui("Address"),
        {row({field("adresseField", ui("Street"))}),
         row({sized("codePostalField", ui("Postal code"), 8), field("villeField", ui("Town"))}),
         row({field("paysField", ui("Country"))})}};
    const LayoutSection contact{
        ui("Contact"),
        {row({field("telephoneField", ui("Phone"))}), row({field("portableField", ui("Mobile phone"))}),
         row({field("faxField", ui("Fax"))}), row({field("emailField", ui("E-mail"))}),
         row({field("urlField", ui("Web site"))})},
        true};
    return {"clubPage", ui("Club"), "general", {club, address, contact}};
}

LayoutRow offer(const Message<>& label, const char* name, const char* price) {
    return row({field(name, label), sized(price, none, 8, ui("€"))});
}

LayoutPane pricesPage() {
    const LayoutSection dives{ui("Dives"),
                              {row({sized("baptemeField", ui("Introductory dive"), 8, ui("€"))}),
                               offer(ui("Offer 1"), "plongee_1Field", "prix_1Field"),
                               offer(ui("Offer 2"), "plongee_2Field", "prix_2Field"),
                               offer(ui("Offer 3"), "plongee_3Field", "prix_3Field"),
                               offer(ui("Offer 4"), "plongee_4Field", "prix_4Field"),
                               offer(ui("Offer 5"), "plongee_5Field", "prix_5Field")}};
    const LayoutSection courses{ui("Courses"),
                                {offer(ui("Course 1"), "formation_1Field", "prixForm_1Field"),
                                 offer(ui("Course 2"), "formation_2Field", "prixForm_2Field"),
                                 offer(ui("Course 3"), "formation_3Field", "prixForm_3Field"),
                                 offer(ui("Course 4"), "formation_4Field", "prixForm_4Field"),
                                 offer(ui("Course 5"), "formation_5Field", "prixForm_5Field"),
                                 offer(ui("Course 6"), "formation_6Field", "prixForm_6Field")},
                                true};
    return {"pricesPage", ui("Prices"), "prices", {dives, courses}};
}

LayoutPane notesPage() {
    const LayoutSection rating{
        ui("Rating"),
        {row({field("cotationSlider", ui("Rating")), sized("cotationInfoField", none, 12)}),
         row({sized("nbPlongeesField", ui("Dives made here"), 6)})}};
    const LayoutSection card{
        ui("Card"), {row({withButton("miseAJourField", ui("Updated on"), "resetDateToNow", ui("Today"))})}};
    const LayoutSection notes{ui("Remarks"), {row({field("remarquesField")})}, true};
    return {"notesPage", ui("Rating & remarks"), "notes", {rating, card, notes}};
}

}  // namespace

namespace clubmenus {
const std::span<const MenuItem> kind = kindItems;
}

const WindowLayout& adressesStructLayout() {
    static const WindowLayout layout{
        "structEditWindow",
        ui("Club or centre"),
        {clubPage(),
         pricesPage(),
         {"hoursPage", ui("Opening hours"), "history", {openinghours::section()}},
         notesPage()}};
    return layout;
}

}  // namespace sargan
