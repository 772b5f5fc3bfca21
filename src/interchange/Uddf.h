#pragma once

#include "interchange/XmlDiveReader.h"

namespace sargan {

class Carnet;

/// The logbook as a file that is declared as UDDF 2.2.0 but tells its dives in UDCF's words. Throws
/// DocumentError for an empty logbook: the gas definitions are those of its first dive.
QByteArray exportUDDFFormat(const Carnet& carnet);

/// Reads the dives of UDDF files. It looks for UDDF's own words, so it finds no dive in what
/// exportUDDFFormat writes.
class UddfReader : public XmlDiveReader {
public:
    const char* name() const override { return "uddf"; }
    Message<> title() const override { return {"Interface", "UDDF", "UDDF"}; }
    QStringList suffixes() const override;
    bool recognises(const QByteArray& bytes) const override;
    XmlDives divesOf(pugi::xml_node root) const override;
    void fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const override;
    bool readsSpaceBetweenTags(pugi::xml_node dive) const override;
};

}  // namespace sargan
