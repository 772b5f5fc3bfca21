#pragma once

#include <QObject>

#include "logbook/DiveControls.h"
#include "platform/desk/Desk.h"
#include "platform/record/Slots.h"

namespace sargan {

/// The edit form of one dive, without a display. Every dive is created and changed through it: by the
/// person, by importers and by the command line alike.
class DiveForm : public QObject {
    Q_OBJECT

public:
    explicit DiveForm(Desk& desk);

    Form& form() { return _form; }
    const Form& form() const { return _form; }

    /// The new-dive defaults, and a profile of one sample at the surface.
    void blankFields();
    /// A dive into the controls.
    void editFields(const RecordPointer<Plongee>& dive);
    /// A new dive from the controls. Alerts what is wrong with pressures and helium, and replaces an oxygen
    /// of 0 or less by 21 and a helium below 0 or from 87 by 0, in the controls too.
    Plongee addDiveToList();
    /// Derived captions.
    void updateUI();

    /// A set of working arrays, one per sample list of a dive.
    const Plongee& working() const { return _working; }
    /// Gives every empty list of the working profile its one surface sample.
    void profilArraysDefaultContent();

    // Gas shortcuts: they set the shares of the main tank's mix, in per cent.
    void razAir();        ///< 21 / 79 / 0
    void razNitrox();     ///< helium 0, nitrogen the rest
    void razHeliox();     ///< nitrogen 0, helium the rest
    void updateSlider();  ///< the difficulty's word

private:
    void setMix(int o2, int n2, int he);
    void checkPressures();
    void checkMix(ControlName o2, ControlName he);
    template <class T>
    void takeInto(Plongee& dive, int control, T Plongee::*field) const;
    void keepUnknownObjects(Plongee& dive) const;

    Desk& _desk;
    Form _form;
    Plongee _working;                ///< holds the seven lists being edited
    RecordPointer<Plongee> _loaded;  ///< the dive that the controls came from; null for a blank form
};

}  // namespace sargan
