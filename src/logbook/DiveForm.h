#pragma once

#include <QObject>

#include "logbook/BlankMemory.h"
#include "logbook/DiveControls.h"
#include "platform/desk/Desk.h"
#include "platform/record/Slots.h"
#include "profile/GasAndCns.h"

namespace sargan {

/// What the form shows beside the tanks, as it stands in the controls now.
struct DiveFigures {
    profile::GasUsed tank, secondTank;
    /// Litres used at the surface's pressure. The second tank's figure takes the first one's place: there is
    /// one holder for both.
    int volumeConsomme = 0;
    float ppO2 = 0;  ///< bar, at the deepest sample, else at the greatest depth
    double cns = 0;  ///< per cent of the oxygen limit
};

/// What a dive form is there for.
enum class DiveFormUse : char {
    Shown,  ///< a person sees it, so its captions follow what it holds
    /// Many dives are built, each from a blank form, and nobody sees the captions: they stay as they are.
    /// The blank form is made once, so settings and the clock count as they stood then.
    Batch,
};

/// The edit form of one dive, without a display. Every dive is created and changed through it: by the
/// person, by importers and by the command line alike.
class DiveForm : public QObject {
    Q_OBJECT

public:
    explicit DiveForm(Desk& desk, DiveFormUse use = DiveFormUse::Shown);

    Form& form() { return _form; }
    const Form& form() const { return _form; }

    /// The new-dive defaults, and a profile of one sample at the surface.
    void blankFields();
    /// A dive into the controls.
    void editFields(const RecordPointer<Plongee>& dive);
    /// A new dive from the controls. Alerts what is wrong with pressures and helium, and replaces an oxygen
    /// of 0 or less by 21 and a helium below 0 or from 87 by 0, in the controls too.
    Plongee addDiveToList();
    /// Derived captions, all anew. What the person types refreshes those that depend on it by itself.
    void updateUI();
    const DiveFigures& figures() const { return _figures; }

    /// A set of working arrays, one per sample list of a dive.
    const Plongee& working() const { return _working; }
    /// The seven lists of this dive become the ones being edited.
    void setProfile(const Plongee& lists);
    /// Gives every empty list of the working profile its one surface sample.
    void profilArraysDefaultContent();

    // Gas shortcuts: they set the shares of the main tank's mix, in per cent.
    void razAir();        ///< 21 / 79 / 0
    void razNitrox();     ///< helium 0, nitrogen the rest
    void razHeliox();     ///< nitrogen 0, helium the rest
    void updateSlider();  ///< the difficulty's word

    void calcDeltaPressure();  ///< pressure and volume used, of both tanks
    void updateCns();          ///< oxygen pressure and its share of the limit
    void updateNitrogen();     ///< what the other shares of both mixes leave

Q_SIGNALS:
    /// Another dive, or a blank one, is in the controls.
    void diveShown();

private:
    using Refresh = void (DiveForm::*)();
    void controlChanged(int control);
    Plongee builtDive() const;
    void refreshOn(std::initializer_list<ControlName> controls, Refresh refresh);
    void endEditing(int control);
    void setMix(int o2, int he);
    void checkPressures();
    void checkOxygen(ControlName o2);
    void checkHelium(ControlName he);
    template <class T>
    void takeInto(Plongee& dive, int control, T Plongee::*field) const;
    void keepUnknownObjects(Plongee& dive) const;

    Desk& _desk;
    Form _form;
    Plongee _working;                ///< holds the seven lists being edited
    RecordPointer<Plongee> _loaded;  ///< the dive that the controls came from; null for a blank form
    float _deepest = 0;              ///< of the working samples
    DiveFigures _figures;
    std::vector<QList<Refresh>> _refreshes;  ///< by control: what depends on it
    std::unique_ptr<BlankMemory> _blank;     ///< of a batch; null for a form that is shown
    bool _isLoading = false;                 ///< all controls change; the captions follow once
};

}  // namespace sargan
