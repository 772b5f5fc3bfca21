#include "logbook/DiveProfil.h"

#include "platform/form/SystemColors.h"
#include "settings/Colors.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// Set-point n of the menu, in bar.
float setPoint(int tag) {
    return 0.7F + 0.1F * float(tag);
}

void takeLists(Profil& profil, const Plongee& dive) {
    profil.profilData = dive.profilProfondeur();
    profil.palierFlag = dive.ASC_Flag();
    profil.vitesseFlag = dive.SLOW_Flag();
    profil.surfaceFlag = dive.SURF_Flag();
    profil.ceilingFlag = dive.CEIL_Flag();
    profil.gazFlag = dive.GAZ_Flag();
    profil.pressData = dive.PRESS_Data();
}

QColor translucent(const UserDefaults& defaults, const QString& key, const QColor& fallback,
                   const QString& alphaKey) {
    QColor color = storedColor(defaults, key, fallback);
    color.setAlphaF(float(std::clamp(defaults.number(alphaKey), 0.0, 1.0)));
    return color;
}

}  // namespace

Profil profilOf(const DiveForm& dive) {
    const Form& form = dive.form();
    const auto integer = [&](const char* name) { return form.integer(ControlName{name}); };
    Profil profil;
    takeLists(profil, dive.working());
    profil.samplingRate = integer("samplingRatePopUp");
    profil.fracO2 = float(form.number(divecontrol::o2Mix));
    profil.ppO2 = setPoint(integer("ppO2PopUp"));
    profil.bailouts = {{{integer("bailout_1_O2Field"), integer("bailout_1_HeField")},
                        {integer("bailout_2_O2Field"), integer("bailout_2_HeField")},
                        {integer("bailout_3_O2Field"), integer("bailout_3_HeField")}}};
    profil.pressDepart = form.integer(divecontrol::depart);
    profil.pressFin = form.integer(divecontrol::fin);
    return profil;
}

Profil profilOf(const Plongee& dive) {
    Profil profil;
    takeLists(profil, dive);
    profil.samplingRate = dive.samplingRate();
    profil.fracO2 = float(dive.o2Mix());
    profil.ppO2 = setPoint(dive.ppO2());
    profil.bailouts = {{{dive.O2Bailout1(), dive.HeBailout1()},
                        {dive.O2Bailout2(), dive.HeBailout2()},
                        {dive.O2Bailout3(), dive.HeBailout3()}}};
    profil.pressDepart = dive.pressionDepart();
    profil.pressFin = dive.pressionFin();
    return profil;
}

ProfilStyle profilStyle(const UserDefaults& defaults) {
    return {
        .plotColor = storedColor(defaults, u"plot color"_s, systemcolor::blue),
        .fillPlot = defaults.boolean(u"fill plot"_s),
        .fillColor = translucent(defaults, u"fill color"_s, systemcolor::red, u"alpha fill color"_s),
        .backgroundColor =
            translucent(defaults, u"background color"_s, systemcolor::gray, u"alpha background color"_s),
        .gradient = defaults.boolean(u"gradient yes"_s),
        .linesColor = storedColor(defaults, u"gradient lines color"_s, QColor::fromRgbF(0.35F, 0.35F, 0.35F)),
        .xMinorTicks = defaults.boolean(u"x minor ticks"_s),
        .yMinorTicks = defaults.boolean(u"y minor ticks"_s),
        .dashedLines = defaults.boolean(u"dashed lines"_s),
        .ppO2Line = defaults.boolean(u"ppO2 line"_s),
        .shadow = defaults.boolean(u"profile shadow"_s),
        .alarmeASC = defaults.boolean(u"alarmeASC"_s),
        .alarmeSLOW = defaults.boolean(u"alarmeSLOW"_s),
        .alarmeCEIL = defaults.boolean(u"alarmeCEIL"_s),
        .alarmeGAZ = defaults.boolean(u"alarmeGAZ"_s),
        .alarmeGAZO2 = defaults.boolean(u"alarmeGAZO2"_s),
        .ascColor = storedColor(defaults, u"ASC color"_s, systemcolor::yellow),
        .slowColor = storedColor(defaults, u"SLOW color"_s, systemcolor::blue),
    };
}

}  // namespace sargan
