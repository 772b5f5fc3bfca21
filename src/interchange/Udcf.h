#pragma once

#include "interchange/XmlDiveReader.h"
#include "interchange/XmlRead.h"

namespace sargan {

class Carnet;

/// The logbook in UDCF's words.
QByteArray exportUDCFFormat(const Carnet& carnet);

/// What UDCF calls the parts of dates and times; the handheld logbook does too.
inline constexpr xml::MomentNames udcfMomentNames{"YEAR", "MONTH", "DAY", "HOUR", "MINUTE"};

/// Reads the dives of UDCF files. A dive's time becomes the seconds between two samples, and the site stays
/// in the place's text, as divers have come to know it.
class UdcfReader : public XmlDiveReader {
public:
    const char* name() const override { return "udcf"; }
    Message<> title() const override { return {"Interface", "UDCF", "UDCF"}; }
    QStringList suffixes() const override;
    bool recognises(const QByteArray& bytes) const override;
    XmlDives divesOf(pugi::xml_node root) const override;
    void fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const override;
    bool readsSpaceBetweenTags(pugi::xml_node dive) const override;
};

}  // namespace sargan
