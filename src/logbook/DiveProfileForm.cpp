#include "logbook/DiveProfileForm.h"

#include <QScopedValueRollback>

#include "profile/ProfileData.h"

namespace sargan {

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

using F = PlongeeFields;

std::vector<ControlSpec> specsOfProfileForm() {
    std::vector<ControlSpec> specs;
    for (const ProfileList& list : profileLists()) {
        specs.push_back({.name = list.text.text, .kind = ControlKind::Area});
        specs.push_back({.name = list.count.text, .kind = ControlKind::Caption});
        specs.push_back({.name = list.replace.text, .kind = ControlKind::Switch});
    }
    specs.push_back({.name = profilecontrol::eraseAll.text, .kind = ControlKind::Switch});
    return specs;
}

const NumberArray& listOf(const Plongee& dive, const ProfileList& list) {
    return dive.*std::get<Numbers Plongee::*>(list.field->member);
}

}  // namespace

std::span<const ProfileList> profileLists() {
    static const ProfileList lists[] = {
        {"depth",
         ui("Depth (m)"),
         &F::profilProfondeur,
         true,
         {"importProfondeurField"},
         {"countProfondeurField"},
         {"eraseProfondeurSwitch"}},
        {"asc",
         ui("Stops"),
         &F::ASC_Flag,
         false,
         {"importASC_Field"},
         {"countASC_Field"},
         {"eraseASC_Switch"}},
        {"slow",
         ui("Fast ascent"),
         &F::SLOW_Flag,
         false,
         {"importSLOW_Field"},
         {"countSLOW_Field"},
         {"eraseSLOW_Switch"}},
        {"ceil",
         ui("Ceiling"),
         &F::CEIL_Flag,
         false,
         {"importCEIL_Field"},
         {"countCEIL_Field"},
         {"eraseCEIL_Switch"}},
        {"surf",
         ui("Surface"),
         &F::SURF_Flag,
         false,
         {"importSURF_Field"},
         {"countSURF_Field"},
         {"eraseSURF_Switch"}},
        {"gaz",
         ui("Gas switches"),
         &F::GAZ_Flag,
         false,
         {"importGAZ_Field"},
         {"countGAZ_Field"},
         {"eraseGAZ_Switch"}},
        {"press",
         ui("Pressure (bar)"),
         &F::PRESS_Data,
         true,
         {"importPRESS_Field"},
         {"countPRESS_Field"},
         {"erasePRESS_Switch"}},
    };
    return lists;
}

DiveProfileForm::DiveProfileForm(Carnet& carnet) : _carnet(carnet), _form(specsOfProfileForm()) {
    _form.addAction(QStringLiteral("importProfil"), [this] { importProfil(); });
    connect(&_form, &Form::changed, this, &DiveProfileForm::controlChanged);
    _form.onEndEditing = [this](int control) { controlLeft(control); };
    updateProfilInfo();
}

void DiveProfileForm::updateProfilInfo() {
    show(false);
}

void DiveProfileForm::followDive() {
    show(isSameDive());
}

bool DiveProfileForm::isSameDive() const {
    const qsizetype row = _carnet.selectedRow();
    if (row < 0 || _row < 0) return false;
    return _carnet.records()[row] == _dive || (row == _row && _carnet.count() == _dives);
}

void DiveProfileForm::show(bool keepsMarked) {
    _row = _carnet.selectedRow();
    _dives = _carnet.count();
    _dive = _row < 0 ? nullptr : _carnet.records()[_row];
    const QScopedValueRollback filling(_isFilling, true);
    const Strings& strings = _carnet.strings();
    _title = strings.text(Message<int>{"Carnet", "Dive number profile datas title"},
                          _carnet.form().integer(divecontrol::plongeeNo));
    if (!keepsMarked) _form.setTag(profilecontrol::eraseAll, 0);
    for (const ProfileList& list : profileLists()) {
        const NumberArray& numbers = listOf(_carnet.diveForm().working(), list);
        const bool isThere = profile::isPresent(numbers);
        if (!keepsMarked) _form.setTag(list.replace, 0);
        if (_form.tag(list.replace) == 0)
            _form.setText(list.text,
                          isThere ? profile::editProfil(numbers, list.isReal ? 1 : 0) : QString());
        _form.setText(list.count, isThere ? strings.text(Message<int>{"Carnet", "Datas"}, int(numbers.size()))
                                          : strings.text({"Carnet", "No datas"}));
    }
}

void DiveProfileForm::importProfil() {
    Plongee profile = _carnet.diveForm().working();
    for (const ProfileList& list : profileLists()) {
        if (_form.tag(list.replace) != 1) continue;
        const QString text = _form.text(_form[list.text]);
        profile.*std::get<Numbers Plongee::*>(list.field->member) =
            list.isReal ? profile::realsFrom(text) : profile::flagsFrom(text);
    }
    _carnet.diveForm().setProfile(profile);
    _carnet.updateDive();
    if (const qsizetype row = _carnet.selectedRow(); row >= 0)
        _carnet.diveForm().editFields(_carnet.records()[row]);
    updateProfilInfo();
}

bool DiveProfileForm::hasPending() const {
    return std::ranges::any_of(profileLists(),
                               [this](const ProfileList& list) { return _form.tag(list.replace) == 1; });
}

NumberArray DiveProfileForm::depthsShown() const {
    const ProfileList& depth = profileLists().front();
    if (_form.tag(depth.replace) != 1) return _carnet.diveForm().working().profilProfondeur();
    return profile::realsFrom(_form.text(_form[depth.text]));
}

void DiveProfileForm::controlChanged(int control) {
    if (_isFilling || _form.spec(control).kind != ControlKind::Area) return;
    // Who types into a list means to replace it.
    for (const ProfileList& list : profileLists())
        if (_form[list.text] == control) _form.setTag(list.replace, 1);
}

void DiveProfileForm::controlLeft(int control) {
    if (control != _form[profilecontrol::eraseAll]) return;
    for (const ProfileList& list : profileLists()) _form.setTag(list.replace, _form.tag(control));
}

}  // namespace sargan
