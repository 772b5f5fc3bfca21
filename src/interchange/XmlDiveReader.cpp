#include "interchange/XmlDiveReader.h"

#include <climits>
#include <cmath>

#include "interchange/XmlRead.h"

namespace sargan {

namespace {

class XmlDiveSource : public DiveSource {
public:
    XmlDiveSource(const XmlDiveReader& reader, std::unique_ptr<XmlFile> file, XmlDives dives)
        : _reader(reader), _file(std::move(file)), _dives(std::move(dives)) {}

    qsizetype count() const override { return qsizetype(_dives.dives.size()); }
    qsizetype passedOver() const override { return _dives.passedOver; }
    void fill(DiveForm& form, qsizetype dive) const override {
        _reader.fill(form, _dives.dives[std::size_t(dive)]);
    }

private:
    const XmlDiveReader& _reader;
    std::unique_ptr<XmlFile> _file;
    XmlDives _dives;
};

NumberArray floatsOf(const std::vector<float>& values) {
    NumberArray list = NumberArray::empty();
    for (const float value : values) list.appendFloat(value);
    return list;
}

}  // namespace

std::unique_ptr<DiveSource> XmlDiveReader::open(const QByteArray& bytes) const {
    auto file = std::make_unique<XmlFile>(bytes, SpaceBetweenTags::Dropped);
    XmlDives dives = divesOf(file->root());
    const bool needsSpace = std::any_of(dives.dives.begin(), dives.dives.end(),
                                        [this](pugi::xml_node dive) { return readsSpaceBetweenTags(dive); });
    if (needsSpace) {
        file.reset();
        file = std::make_unique<XmlFile>(bytes, SpaceBetweenTags::Kept);
        dives = divesOf(file->root());
    }
    return std::make_unique<XmlDiveSource>(*this, std::move(file), std::move(dives));
}

void addChildren(pugi::xml_node element, const char* name, std::vector<pugi::xml_node>& children) {
    for (const pugi::xml_node child : element.children(name)) children.push_back(child);
}

namespace diveimport {

void setMoments(DiveForm& form, pugi::xml_node date, pugi::xml_node time, const xml::MomentNames& names) {
    const auto set = [&form](ControlName control, const Moment& moment) {
        if (moment.isPresent()) form.form().setDate(form.form()[control], moment);
    };
    set(divecontrol::date, xml::day(date, names));
    set(divecontrol::heure, xml::timeOfDay(time, names));
}

void setUntoldConditions(DiveForm& form) {
    form.form().setTag(ControlName{"meteoPopUp"}, 7);
    form.form().setTag(ControlName{"courantPopUp"}, 6);
    form.form().setTag(ControlName{"visibilitePopUp"}, 8);
    form.form().setTag(ControlName{"typePlongeePopUp"}, 13);
}

void setDepths(DiveForm& form, const std::vector<float>& depths) {
    if (depths.empty()) return;
    const NumberArray noMarks = floatsOf(std::vector<float>(depths.size()));
    Plongee lists = form.working();
    lists.setProfilProfondeur(floatsOf(depths));
    for (auto set : {&Plongee::setASC_Flag, &Plongee::setSLOW_Flag, &Plongee::setCEIL_Flag,
                     &Plongee::setSURF_Flag, &Plongee::setGAZ_Flag})
        (lists.*set)(noMarks);
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
