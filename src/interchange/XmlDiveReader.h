#pragma once

#include "interchange/DiveReader.h"
#include "interchange/XmlFile.h"
#include "interchange/XmlRead.h"

namespace sargan {

/// The elements of an XML file that are dives, in document order.
struct XmlDives {
    std::vector<pugi::xml_node> dives;
    qsizetype passedOver = 0;
};

/// What a file's dives have in common, or need one after the other, so that it is made once.
struct DiveMemory {
    std::vector<float> depths;  ///< of the dive that is being read
    Numbers noMarks;            ///< zeros, one for each depth of the last dive that had any
    xml::Calendar calendar;
};

/// A format whose dives are elements of an XML file.
class XmlDiveReader : public DiveReader {
public:
    std::unique_ptr<DiveSource> open(const QByteArray& bytes) const override;

    virtual XmlDives divesOf(pugi::xml_node root) const = 0;
    virtual void fill(DiveForm& form, pugi::xml_node dive, DiveMemory& memory) const = 0;
    /// Whether the white space between this dive's tags changes what is read.
    virtual bool readsSpaceBetweenTags(pugi::xml_node dive) const = 0;
};

/// Adds the element's children of this name.
void addChildren(pugi::xml_node element, const char* name, std::vector<pugi::xml_node>& children);

/// What several formats do alike with the dive form.
namespace diveimport {

/// Day and time of day; what the elements do not tell stays blank.
void setMoments(DiveForm& form, pugi::xml_node date, pugi::xml_node time, const xml::MomentNames& names,
                xml::Calendar& calendar);
/// Weather, current, visibility and dive type of a dive whose file has no words for them.
void setUntoldConditions(DiveForm& form);
/// The memory's depths become the whole profile; the five lists of marks get as many zeros. Nothing else of
/// the profile changes, and without depths nothing at all.
void setDepths(DiveForm& form, DiveMemory& memory);
/// Oxygen and helium in per cent into the mix fields, without what is behind the point, and the kind of gas.
void setMix(DiveForm& form, double oxygen, double helium);
/// The kind of gas by tests one after the other, of which the last that holds counts; none when none does.
std::optional<int> gasKind(double oxygen, double helium);
/// An element's text into a control; without the element the control stays as it is.
void setText(DiveForm& form, const char* control, pugi::xml_node element);
/// The same with the element's whole number.
void setInteger(DiveForm& form, const char* control, pugi::xml_node element);
/// "infinity" is shown as "--:--".
void setSurfaceInterval(DiveForm& form, pugi::xml_node element);

}  // namespace diveimport

}  // namespace sargan
