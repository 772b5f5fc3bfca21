#include "logbook/DiveForm.h"

#include <QScopedValueRollback>

#include "logbook/DiveBlank.h"
#include "platform/desk/PickListOffer.h"
#include "platform/form/FieldControl.h"
#include "profile/ProfileData.h"

namespace sargan {

namespace {

std::vector<ControlSpec> specsOfDiveForm() {
    std::vector<ControlSpec> specs;
    for (const DiveControl& control : diveControls()) specs.push_back(control.spec);
    return specs;
}

void copyProfile(const Plongee& from, Plongee& to) {
    to.setProfilProfondeur(from.profilProfondeur());
    to.setASC_Flag(from.ASC_Flag());
    to.setSLOW_Flag(from.SLOW_Flag());
    to.setSURF_Flag(from.SURF_Flag());
    to.setCEIL_Flag(from.CEIL_Flag());
    to.setGAZ_Flag(from.GAZ_Flag());
    to.setPRESS_Data(from.PRESS_Data());
}

}  // namespace

DiveForm::DiveForm(Desk& desk, DiveFormUse use) : _desk(desk), _form(specsOfDiveForm()) {
    const auto controls = diveControls();
    for (int i = 0; i < _form.count(); ++i)
        if (controls[std::size_t(i)].field)
            _form.addAlias(QString::fromLatin1(controls[std::size_t(i)].field->name), i);
    _form.addAction(QStringLiteral("razAir"), [this] { razAir(); });
    _form.addAction(QStringLiteral("razNitrox"), [this] { razNitrox(); });
    _form.addAction(QStringLiteral("razHeliox"), [this] { razHeliox(); });
    _form.addAction(QStringLiteral("blankFields"), [this] { blankFields(); });
    // Nitrogen is what the other shares leave: shown, never stored.
    _form.setEnabled(_form[divecontrol::n2Mix], false);
    _form.setEnabled(_form[divecontrol::n2Mix2], false);
    using namespace divecontrol;
    _refreshes.resize(std::size_t(_form.count()));
    refreshOn({depart, fin, volumeBloc, depart2, fin2, volumeBloc2}, &DiveForm::calcDeltaPressure);
    refreshOn({o2Mix, heMix, o2Mix2, heMix2}, &DiveForm::updateNitrogen);
    refreshOn({o2Mix, temps, profondeur}, &DiveForm::updateCns);
    refreshOn({difficulte}, &DiveForm::updateSlider);
    connect(&_form, &Form::changed, this, &DiveForm::controlChanged);
    _form.onEndEditing = [this](int control) { endEditing(control); };
    blankFields();
    if (use == DiveFormUse::Batch) _blank = std::make_unique<BlankMemory>(_form, builtDive());
}

void DiveForm::controlChanged(int control) {
    if (_blank) return _blank->note(control);
    if (_isLoading) return;
    for (const Refresh refresh : std::as_const(_refreshes[std::size_t(control)])) (this->*refresh)();
}

void DiveForm::refreshOn(std::initializer_list<ControlName> controls, Refresh refresh) {
    for (const ControlName name : controls) _refreshes[std::size_t(_form[name])].append(refresh);
}

void DiveForm::endEditing(int control) {
    if (const char* list = _form.spec(control).pickList)
        offerToPickList(_desk, QLatin1String(list), _form.text(control));
}

void DiveForm::blankFields() {
    _loaded.reset();
    if (_blank) {
        _blank->restore(_form);
        copyProfile(_blank->dive(), _working);
        return;
    }
    {
        const QScopedValueRollback loading(_isLoading, true);
        fillBlankDive(_form, _desk);
    }
    _working = Plongee();
    profilArraysDefaultContent();
    updateUI();
    _form.setFocus(_form[divecontrol::plongeeNo]);
    Q_EMIT diveShown();
}

void DiveForm::editFields(const RecordPointer<Plongee>& dive) {
    {
        const QScopedValueRollback loading(_isLoading, true);
        const auto controls = diveControls();
        for (int i = 0; i < _form.count(); ++i)
            if (const auto* field = controls[std::size_t(i)].field)
                field->visit(*dive, [&](const auto& value) { showField(_form, i, value); });
    }
    setProfile(*dive);
    _loaded = dive;
    updateUI();
    Q_EMIT diveShown();
}

void DiveForm::setProfile(const Plongee& lists) {
    copyProfile(lists, _working);
    if (_blank) return;
    _deepest = profile::greatest(_working.profilProfondeur());
    if (!_isLoading) updateCns();
}

Plongee DiveForm::addDiveToList() {
    checkPressures();
    checkOxygen(divecontrol::o2Mix);
    checkOxygen(divecontrol::o2Mix2);
    checkHelium(divecontrol::heMix);
    checkHelium(divecontrol::heMix2);
    return builtDive();
}

Plongee DiveForm::builtDive() const {
    Plongee dive;
    const auto controls = diveControls();
    const auto take = [&](int control) {
        if (const auto* field = controls[std::size_t(control)].field)
            std::visit([&](auto at) { takeInto(dive, control, at); }, field->member);
    };
    if (_blank && !_loaded) {
        dive = _blank->dive();
        for (const int control : _blank->changed()) take(control);
    } else {
        for (int i = 0; i < _form.count(); ++i) take(i);
    }
    copyProfile(_working, dive);
    keepUnknownObjects(dive);
    return dive;
}

template <class T>
void DiveForm::takeInto(Plongee& dive, int control, T Plongee::*field) const {
    takeField(_form, control, dive.*field);
    // A number that nobody typed over stays as it was to the bit, even when it is infinite or none at all.
    if constexpr (std::is_same_v<T, Float>)
        if (_loaded && _form.text(control) == shortest((*_loaded).*field)) dive.*field = (*_loaded).*field;
}

void DiveForm::updateUI() {
    if (_blank) return;
    updateSlider();
    updateNitrogen();
    calcDeltaPressure();
    updateCns();
}

void DiveForm::calcDeltaPressure() {
    const auto figure = [this](ControlName start, ControlName end, ControlName volume, ControlName caption) {
        const profile::GasUsed used =
            profile::gasUsed(_form.integer(start), _form.integer(end), _form.integer(volume));
        _figures.volumeConsomme = used.volume;
        _form.setText(caption, _desk.strings.text(Message<int, int>{"Carnet", "Delta pressure"}, used.delta,
                                                  used.volume));
        return used;
    };
    using namespace divecontrol;
    _figures.tank = figure(depart, fin, volumeBloc, deltaPressure);
    _figures.secondTank = figure(depart2, fin2, volumeBloc2, deltaPressure2);
}

void DiveForm::updateCns() {
    const double o2 = _form.number(divecontrol::o2Mix);
    _figures.ppO2 = profile::isPresent(_working.profilProfondeur())
                        ? profile::ppO2AtSample(o2, _deepest)
                        : profile::ppO2AtDepth(o2, _form.number(divecontrol::profondeur));
    _figures.cns = profile::calculSncClock(double(_figures.ppO2), _form.number(divecontrol::temps));
    _form.setText(divecontrol::cns, _desk.strings.text(Message<float, double>{"Carnet", "CNS", "N/A"},
                                                       _figures.ppO2, _figures.cns));
}

void DiveForm::updateNitrogen() {
    using namespace divecontrol;
    const auto complete = [this](ControlName o2, ControlName he, ControlName n2) {
        const qint64 rest = qint64(100) - _form.integer(o2) - _form.integer(he);
        _form.setInteger(n2, int(std::clamp<qint64>(rest, INT_MIN, INT_MAX)));
    };
    complete(o2Mix, heMix, n2Mix);
    complete(o2Mix2, heMix2, n2Mix2);
}

void DiveForm::profilArraysDefaultContent() {
    using profile::orSurface;
    _working.setProfilProfondeur(orSurface(_working.profilProfondeur(), true));
    _working.setASC_Flag(orSurface(_working.ASC_Flag(), false));
    _working.setSLOW_Flag(orSurface(_working.SLOW_Flag(), false));
    _working.setSURF_Flag(orSurface(_working.SURF_Flag(), false));
    _working.setCEIL_Flag(orSurface(_working.CEIL_Flag(), false));
    _working.setGAZ_Flag(orSurface(_working.GAZ_Flag(), false));
    _working.setPRESS_Data(orSurface(_working.PRESS_Data(), true));
    _deepest = profile::greatest(_working.profilProfondeur());
}

void DiveForm::razAir() {
    setMix(21, 0);
}

void DiveForm::razNitrox() {
    setMix(_form.integer(divecontrol::o2Mix), 0);
}

void DiveForm::razHeliox() {
    const int o2 = _form.integer(divecontrol::o2Mix);
    setMix(o2, int(qint64(100) - o2));
}

void DiveForm::setMix(int o2, int he) {
    _form.setFocus(_form[divecontrol::surface]);
    // What the diver typed as oxygen ("32,5") stays as typed unless the mix is another one.
    if (_form.integer(divecontrol::o2Mix) != o2) _form.setInteger(divecontrol::o2Mix, o2);
    _form.setInteger(divecontrol::heMix, he);
    updateUI();
}

void DiveForm::updateSlider() {
    static constexpr Message<> words[] = {{"Carnet", "Very easy"}, {"Carnet", "Easy"},
                                          {"Carnet", "Normal"},    {"Carnet", "Hard"},
                                          {"Carnet", "Very hard"}, {"Carnet", "Extreme"}};
    const int level = _form.tag(divecontrol::difficulte);
    _form.setText(divecontrol::difficulteCaption,
                  _desk.strings.text(words[level >= 0 && level < 5 ? level : 5]));
}

void DiveForm::checkPressures() {
    const auto isWrong = [this](ControlName start, ControlName end) {
        const int in = _form.integer(start);
        const int out = _form.integer(end);
        return in < 0 || out < 0 || out > in;
    };
    if (isWrong(divecontrol::depart, divecontrol::fin) || isWrong(divecontrol::depart2, divecontrol::fin2))
        _desk.prompt.alert(_desk.strings.text({"Carnet", "Pressure in out"}));
}

void DiveForm::checkOxygen(ControlName o2) {
    if (_form.integer(o2) <= 0) _form.setInteger(o2, 21);
}

void DiveForm::checkHelium(ControlName he) {
    const int helium = _form.integer(he);
    if (helium >= 0 && helium < 87) return;
    _form.setInteger(he, 0);
    _desk.prompt.alert(_desk.strings.text({"Carnet", "Helium percent"}));
}

void DiveForm::keepUnknownObjects(Plongee& dive) const {
    if (!_loaded || !_loaded->hasKept()) return;
    const FieldList<Plongee> fields = PlongeeFields::all;
    for (int i = 0; i < int(fields.size()); ++i) {
        const ArchivedObject kept = _loaded->kept(i);
        if (kept.isNil()) continue;
        const bool same = std::visit([&](auto at) { return sameValue(dive.*at, (*_loaded).*at); },
                                     fields[std::size_t(i)]->member);
        if (same) dive.keep(i, kept);
    }
}

}  // namespace sargan
