#pragma once

#include "interchange/XmlDiveReader.h"

namespace sargan {

/// Reads the logbook file of the handheld companion. Whatever its root is called, the dives stand in the
/// root's last "repgroup". It has no samples.
class HandheldReader : public XmlDiveReader {
public:
    const char* name() const override { return "handheld"; }
    Message<> title() const override { return {"Interface", "Handheld logbook", "Handheld logbook"}; }
    QStringList suffixes() const override;
    bool recognises(const QByteArray& bytes) const override;
    XmlDives divesOf(pugi::xml_node root) const override;
    void fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const override;
    bool readsSpaceBetweenTags(pugi::xml_node dive) const override;
};

}  // namespace sargan
