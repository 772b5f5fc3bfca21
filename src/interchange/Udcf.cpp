#include "interchange/Udcf.h"

#include <climits>
#include <cmath>
#include <cstring>

#include "interchange/DiveElements.h"

namespace sargan {

namespace {

/// Sampling-rate codes by the seconds between two samples. It is not quite the writer's table: 5 seconds
/// come back as code 7, whichever of its two codes they were written for.
struct Rate {
    int seconds;
    int code;
};

constexpr Rate rates[] = {{10, 0}, {20, 1}, {30, 2}, {60, 3}, {120, 4}, {4, 5}, {1, 6}, {5, 7}};

void setInterval(DiveForm& form, int seconds) {
    form.form().setInteger(divecontrol::temps, seconds);
    for (const Rate& rate : rates)
        if (rate.seconds == seconds) form.form().setTag(divecontrol::samplingRate, rate.code);
}

void fillSamples(DiveForm& form, pugi::xml_node samples, DiveMemory& memory) {
    memory.depths.clear();
    pugi::xml_node delta;
    for (const pugi::xml_node element : samples) {
        const char* const name = element.name();
        if (std::strcmp(name, "D") == 0) memory.depths.push_back(float(xml::number(element)));
        if (std::strcmp(name, "DELTA") == 0) delta = element;
    }
    if (delta) setInterval(form, xml::integer(delta));
    if (memory.depths.empty()) return;
    const double greatest = *std::max_element(memory.depths.begin(), memory.depths.end());
    form.form().setInteger(divecontrol::profondeur,
                           int(std::clamp(greatest, double(INT_MIN), double(INT_MAX))));
    diveimport::setDepths(form, memory);
}

void fillGases(DiveForm& form, pugi::xml_node mix) {
    const pugi::xml_node oxygen = xml::lastChild(mix, "O2");
    const pugi::xml_node helium = xml::lastChild(mix, "HE");
    if (oxygen || helium)
        diveimport::setMix(form, oxygen ? xml::number(oxygen) * 100 : form.form().number(divecontrol::o2Mix),
                           helium ? xml::number(helium) * 100 : form.form().number(divecontrol::heMix));
    const pugi::xml_node tank = xml::lastChild(mix, "TANK");
    diveimport::setText(form, "volumeBlocField", xml::lastChild(tank, "TANKVOLUME"));
    diveimport::setText(form, "departField", xml::lastChild(tank, "PSTART"));
    diveimport::setText(form, "finField", xml::lastChild(tank, "PEND"));
}

}  // namespace

QByteArray exportUDCFFormat(const Carnet& carnet) {
    QByteArray bytes;
    bytes.reserve(diveelements::likelySize(carnet));
    XmlWriter xml(bytes);
    xml.open("PROFILE", "UDCF", "1");
    diveelements::writeComments(xml, carnet.desk().clock.now());
    xml.element("UNITS", "METRIC");
    xml.open("DEVICE");
    xml.element("VENDOR", "Sargan 1.10.0");
    xml.element("MODEL", "Sargan");
    xml.element("VERSION", "1.10.0 (20141025)");
    xml.close();
    diveelements::writeAddInfo(xml, carnet);
    diveelements::writeDives(xml, carnet, {"DATE", "YEAR", "MONTH", "DAY", "TIME", "HOUR", "MINUTE"});
    xml.close();
    return bytes;
}

QStringList UdcfReader::suffixes() const {
    return {QStringLiteral("udcf"), QStringLiteral("xml"), QStringLiteral("txt")};
}

bool UdcfReader::recognises(const QByteArray& bytes) const {
    return rootNameOf(bytes) == "PROFILE";
}

XmlDives UdcfReader::divesOf(pugi::xml_node root) const {
    XmlDives found;
    for (const pugi::xml_node group : root.children("REPGROUP")) addChildren(group, "DIVE", found.dives);
    return found;
}

bool UdcfReader::readsSpaceBetweenTags(pugi::xml_node dive) const {
    return xml::isNested(xml::lastChild(dive, "PLACE"));
}

void UdcfReader::fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const {
    diveimport::setText(form, "lieuField", xml::lastChild(dive, "PLACE"));
    diveimport::setMoments(form, xml::lastChild(dive, "DATE"), xml::lastChild(dive, "TIME"), udcfMomentNames,
                           memory.calendar);
    diveimport::setUntoldConditions(form);
    diveimport::setText(form, "tempEauField", xml::lastChild(dive, "TEMPERATURE"));
    diveimport::setText(form, "altitudeField", xml::lastChild(dive, "ALTITUDE"));
    diveimport::setSurfaceInterval(form, xml::lastChild(dive, "SURFACEINTERVAL"));
    fillSamples(form, xml::lastChild(dive, "SAMPLES"), memory);
    fillGases(form, xml::lastChild(xml::lastChild(dive, "GASES"), "MIX"));
    form.updateUI();
}

}  // namespace sargan
