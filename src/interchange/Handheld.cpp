#include "interchange/Handheld.h"

#include "interchange/Udcf.h"

namespace sargan {

namespace {

/// An element and the control that its whole number goes to; for a menu the number is an item's index.
struct NumberElement {
    const char* element;
    const char* control;
};

constexpr NumberElement numberElements[] = {
    {"weather", "meteoPopUp"},
    {"current", "courantPopUp"},
    {"visibility", "visibilitePopUp"},
    {"divetype", "typePlongeePopUp"},
    {"maxdepth", "profondeurField"},
    {"divetime", "tempsField"},
    {"watertemperature", "tempEauField"},
    {"airrtemperature", "tempAirField"},  // so it is spelt in these files
    {"altitude", "altitudeField"},
};

bool hasItem(const ControlSpec& menu, int tag) {
    return std::any_of(menu.menu.begin(), menu.menu.end(),
                       [tag](const MenuItem& item) { return item.tag == tag; });
}

/// An index that the menu does not have leaves its choice alone.
void setNumber(DiveForm& form, const NumberElement& to, pugi::xml_node element) {
    if (!element) return;
    const ControlSpec& spec = form.form().spec(form.form()[ControlName{to.control}]);
    if (spec.kind != ControlKind::PopUp || hasItem(spec, xml::integer(element)))
        diveimport::setInteger(form, to.control, element);
}

void setMix(DiveForm& form, pugi::xml_node mix) {
    const pugi::xml_node oxygen = xml::lastChild(mix, "o2");
    const pugi::xml_node helium = xml::lastChild(mix, "he");
    if (!oxygen && !helium) return;
    diveimport::setMix(form, oxygen ? xml::number(oxygen) * 100 : form.form().number(divecontrol::o2Mix),
                       helium ? xml::number(helium) * 100 : form.form().number(divecontrol::heMix));
}

/// The tank stands beside the gases, or in the mix that it holds.
pugi::xml_node tankOf(pugi::xml_node dive, pugi::xml_node mix) {
    const pugi::xml_node own = xml::lastChild(dive, "tank");
    return own ? own : xml::lastChild(mix, "tank");
}

}  // namespace

QStringList HandheldReader::suffixes() const {
    return {QStringLiteral("xml"), QStringLiteral("txt")};
}

bool HandheldReader::recognises(const QByteArray& bytes) const {
    const QByteArray root = rootNameOf(bytes);
    return !root.isEmpty() && root != "uddf" && root != "PROFILE" && beginningOf(bytes).contains("<repgroup");
}

XmlDives HandheldReader::divesOf(pugi::xml_node root) const {
    XmlDives found;
    std::vector<pugi::xml_node> everywhere;
    for (const pugi::xml_node group : root.children("repgroup")) addChildren(group, "dive", everywhere);
    addChildren(xml::lastChild(root, "repgroup"), "dive", found.dives);
    found.passedOver = qsizetype(everywhere.size() - found.dives.size());
    return found;
}

bool HandheldReader::readsSpaceBetweenTags(pugi::xml_node dive) const {
    return xml::isNested(xml::lastChild(dive, "place")) || xml::isNested(xml::lastChild(dive, "site"));
}

void HandheldReader::fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const {
    diveimport::setText(form, "lieuField", xml::lastChild(dive, "place"));
    diveimport::setText(form, "siteField", xml::lastChild(dive, "site"));
    diveimport::setMoments(form, xml::lastChild(dive, "date"), xml::lastChild(dive, "time"), udcfMomentNames,
                           memory.calendar);
    for (const NumberElement& number : numberElements)
        setNumber(form, number, xml::lastChild(dive, number.element));
    diveimport::setSurfaceInterval(form, xml::lastChild(dive, "surfaceinterval"));
    const pugi::xml_node mix = xml::lastChild(xml::lastChild(dive, "gases"), "mix");
    setMix(form, mix);
    const pugi::xml_node tank = tankOf(dive, mix);
    diveimport::setText(form, "volumeBlocField", xml::lastChild(tank, "tankvolume"));
    diveimport::setText(form, "departField", xml::lastChild(tank, "pstart"));
    diveimport::setText(form, "finField", xml::lastChild(tank, "pend"));
    form.updateUI();
}

}  // namespace sargan
