#include "interchange/XmlDiveReader.h"

#include <climits>
#include <cmath>

#include "interchange/XmlRead.h"
#include "platform/archive/NumberBatch.h"

namespace sargan {

namespace {

class XmlDiveSource : public DiveSource {
public:
    XmlDiveSource(const XmlDiveReader& reader, const QByteArray& bytes) : _reader(reader), _bytes(bytes) {
        parse(SpaceBetweenTags::Dropped);
    }

    qsizetype count() const override { return qsizetype(_dives.dives.size()); }
    qsizetype passedOver() const override { return _dives.passedOver; }
    void fill(DiveForm& form, qsizetype dive) override {
        const auto at = std::size_t(dive);
        // Few files need their white space, and it is most of a tree.
        if (_space == SpaceBetweenTags::Dropped && _reader.readsSpaceBetweenTags(_dives.dives[at]))
            parse(SpaceBetweenTags::Kept);
        _reader.fill(form, _dives.dives[at], _memory);
    }

private:
    void parse(SpaceBetweenTags space) {
        _space = space;
        _file.reset();
        _file = std::make_unique<XmlFile>(_bytes, space);
        _dives = _reader.divesOf(_file->root());
    }

    const XmlDiveReader& _reader;
    QByteArray _bytes;
    SpaceBetweenTags _space = SpaceBetweenTags::Dropped;
    std::unique_ptr<XmlFile> _file;
    XmlDives _dives;
    DiveMemory _memory;
};

}  // namespace

std::unique_ptr<DiveSource> XmlDiveReader::open(const QByteArray& bytes) const {
    return std::make_unique<XmlDiveSource>(*this, bytes);
}

void addChildren(pugi::xml_node element, const char* name, std::vector<pugi::xml_node>& children) {
    for (const pugi::xml_node child : element.children(name)) children.push_back(child);
}

namespace diveimport {

void setMoments(DiveForm& form, pugi::xml_node date, pugi::xml_node time, const xml::MomentNames& names,
                xml::Calendar& calendar) {
    const auto set = [&form](ControlName control, const Moment& moment) {
        if (moment.isPresent()) form.form().setDate(form.form()[control], moment);
    };
    set(divecontrol::date, calendar.day(date, names));
    set(divecontrol::heure, calendar.timeOfDay(time, names));
}

void setUntoldConditions(DiveForm& form) {
    form.form().setTag(ControlName{"meteoPopUp"}, 7);
    form.form().setTag(ControlName{"courantPopUp"}, 6);
    form.form().setTag(ControlName{"visibilitePopUp"}, 8);
    form.form().setTag(ControlName{"typePlongeePopUp"}, 13);
}

void setDepths(DiveForm& form, DiveMemory& memory) {
    const std::vector<float>& depths = memory.depths;
    if (depths.empty()) return;
    if (memory.noMarks.size() != qsizetype(depths.size()))
        memory.noMarks = arrayOfFloats(std::vector<float>(depths.size()));
    Plongee lists = form.working();
    lists.setProfilProfondeur(arrayOfFloats(depths));
    for (auto set : {&Plongee::setASC_Flag, &Plongee::setSLOW_Flag, &Plongee::setCEIL_Flag,
                     &Plongee::setSURF_Flag, &Plongee::setGAZ_Flag})
        (lists.*set)(memory.noMarks);
    form.setProfile(lists);
}

std::optional<int> gasKind(double oxygen, double helium) {
    const double nitrogen = 100 - oxygen - helium;
    std::optional<int> kind;
    if (oxygen == 21 && nitrogen == 79) kind = 0;
    if (oxygen > 21 && helium == 0) kind = 1;
    if (helium > 0 && nitrogen > 0) kind = 2;
    if (helium > 0 && nitrogen == 0) kind = 3;
    if (helium > 21 && nitrogen > 0) kind = 4;
    return kind;
}

namespace {

int truncated(double value) {
    if (std::isnan(value)) return 0;
    return int(std::clamp(value, double(INT_MIN), double(INT_MAX)));
}

}  // namespace

void setMix(DiveForm& form, double oxygen, double helium) {
    if (const auto kind = gasKind(oxygen, helium)) form.form().setTag(ControlName{"gazPopUp"}, *kind);
    form.form().setInteger(divecontrol::o2Mix, truncated(oxygen));
    form.form().setInteger(divecontrol::heMix, truncated(helium));
    form.form().setInteger(divecontrol::n2Mix, truncated(100 - oxygen - helium));
}

void setText(DiveForm& form, const char* control, pugi::xml_node element) {
    if (element) form.form().setText(ControlName{control}, xml::text(element));
}

void setInteger(DiveForm& form, const char* control, pugi::xml_node element) {
    if (element) form.form().setInteger(ControlName{control}, xml::integer(element));
}

void setSurfaceInterval(DiveForm& form, pugi::xml_node element) {
    if (!element) return;
    const QString interval = xml::text(element);
    form.form().setText(divecontrol::surface,
                        interval.trimmed() == u"infinity" ? QStringLiteral("--:--") : interval);
}

}  // namespace diveimport

}  // namespace sargan
