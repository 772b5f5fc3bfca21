#include "interchange/Uddf.h"

#include <climits>
#include <cstring>

#include "interchange/DiveElements.h"
#include "interchange/XmlRead.h"

namespace sargan {

namespace {

constexpr xml::MomentNames momentNames{"year", "month", "day", "hour", "minute"};

void writeGenerator(XmlWriter& xml) {
    xml.open("generator");
    xml.element("name", "Sargan 1.0.8");
    xml.open("manufacturer");
    xml.element("name", "Sargan");
    xml.open("contact");
    xml.element("email", diveelements::contactAddress);
    xml.element("homepage", diveelements::webAddress);
    xml.close();
    xml.close();
    xml.element("version", "1.13");
    xml.open("date");
    xml.element("year", "2017");
    xml.element("month", "11");
    xml.element("day", "24");
    xml.close();
    xml.close();
}

void writeGasDefinitions(XmlWriter& xml, const Plongee& first) {
    xml.open("gasdefinitions");
    xml.open("mixid");
    xml.element("name", "Trimix");
    xml.element("o2", first.o2Mix() / 100.0, 3);
    xml.element("n2", (100.0 - first.o2Mix() - first.heMix()) / 100, 3);
    xml.element("he", first.heMix() / 100.0, 3);
    xml.close();
    xml.close();
}

/// Kelvin to degrees, without what is behind the point. The 0.05 that is missing is meant to be.
void setTemperature(DiveForm& form, const char* control, pugi::xml_node kelvin) {
    if (!kelvin) return;
    const double degrees =
        std::clamp(double(float(xml::number(kelvin))) - 273.1, double(INT_MIN), double(INT_MAX));
    form.form().setInteger(ControlName{control}, int(degrees));
}

bool isBlank(const char* text) {
    return text[std::strspn(text, " \t\r\n")] == '\0';
}

/// A waypoint that begins with its depth has that depth. Otherwise its texts run into one another and what
/// they begin with counts.
float depthOf(pugi::xml_node waypoint) {
    pugi::xml_node first = waypoint.first_child();
    while (first && first.type() != pugi::node_element && isBlank(first.value()))
        first = first.next_sibling();
    const bool isDepth = isBlank(waypoint.value()) && std::strcmp(first.name(), "depth") == 0;
    return float(xml::number(isDepth ? first : waypoint));
}

/// The last waypoint that tells the time says how long the dive was.
void fillSamples(DiveForm& form, pugi::xml_node samples, DiveMemory& memory) {
    memory.depths.clear();
    pugi::xml_node seconds;
    for (const pugi::xml_node waypoint : samples.children("waypoint")) {
        memory.depths.push_back(depthOf(waypoint));
        if (const pugi::xml_node time = xml::lastChild(waypoint, "divetime")) seconds = time;
    }
    diveimport::setDepths(form, memory);
    if (seconds) form.form().setInteger(divecontrol::temps, xml::integer(seconds) / 60);
}

}  // namespace

QByteArray exportUDDFFormat(const Carnet& carnet) {
    if (carnet.count() == 0) throw documentError(interchangeproblem::emptyLogbook);
    QByteArray bytes;
    bytes.reserve(diveelements::likelySize(carnet));
    XmlWriter xml(bytes);
    xml.open("uddf", "version", "2.2.0");
    diveelements::writeComments(xml, carnet.desk().clock.now());
    writeGenerator(xml);
    writeGasDefinitions(xml, carnet.record(0));
    diveelements::writeAddInfo(xml, carnet);
    diveelements::writeDives(xml, carnet, {"date", "year", "month", "day", "time", "hour", "minute"});
    xml.close();
    return bytes;
}

QStringList UddfReader::suffixes() const {
    return {QStringLiteral("uddf"), QStringLiteral("xml"), QStringLiteral("txt")};
}

bool UddfReader::recognises(const QByteArray& bytes) const {
    return rootNameOf(bytes) == "uddf";
}

XmlDives UddfReader::divesOf(pugi::xml_node root) const {
    XmlDives found;
    std::vector<pugi::xml_node> everywhere;
    for (const pugi::xml_node data : root.children("profiledata"))
        for (const pugi::xml_node group : data.children("repetitiongroup"))
            addChildren(group, "dive", everywhere);
    addChildren(xml::lastChild(xml::lastChild(root, "profiledata"), "repetitiongroup"), "dive", found.dives);
    found.passedOver = qsizetype(everywhere.size() - found.dives.size());
    return found;
}

bool UddfReader::readsSpaceBetweenTags(pugi::xml_node dive) const {
    for (const pugi::xml_node waypoint : xml::lastChild(dive, "samples").children("waypoint")) {
        const pugi::xml_node first = waypoint.first_child();
        if (first && (*waypoint.value() || std::strcmp(first.name(), "depth") != 0)) return true;
    }
    return xml::isNested(xml::lastChild(xml::lastChild(dive, "notes"), "text"));
}

void UddfReader::fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const {
    diveimport::setMoments(form, xml::lastChild(dive, "date"), xml::lastChild(dive, "time"), momentNames,
                           memory.calendar);
    diveimport::setUntoldConditions(form);
    setTemperature(form, "tempAirField", xml::lastChild(dive, "airtemperature"));
    setTemperature(form, "tempEauField", xml::lastChild(dive, "lowesttemperature"));
    diveimport::setText(form, "profondeurField", xml::lastChild(dive, "greatestdepth"));
    diveimport::setText(form, "notesField", xml::lastChild(xml::lastChild(dive, "notes"), "text"));
    fillSamples(form, xml::lastChild(dive, "samples"), memory);
    form.updateUI();
}

}  // namespace sargan
