#pragma once

#include "logbook/Carnet.h"

namespace sargan {

/// One of a profile's seven lists, as the profile window shows it.
struct ProfileList {
    const char* id;  ///< "depth": its short name on the command line
    Message<> title;
    const Field<Plongee>* field;
    bool isReal;  ///< depths and pressures; the others are flags
    ControlName text, count, replace;
};

/// In the order in which lists are replaced.
std::span<const ProfileList> profileLists();

/// The profile editing window without a display: the seven lists of the dive in the form, as texts, and
/// those texts back into the dive.
class DiveProfileForm : public QObject {
    Q_OBJECT

public:
    explicit DiveProfileForm(Carnet& carnet);

    Form& form() { return _form; }
    const Form& form() const { return _form; }
    /// The window's title, with the dive's number.
    const QString& title() const { return _title; }

    /// Texts, counts and title from the form's dive; every "replace" box off.
    void updateProfilInfo();
    /// The same after a change of the form or the list. While the dive is still the same one, the lists whose
    /// box is on keep what was typed.
    void followDive();
    /// The lists whose box is on are replaced by what their texts say, each on its own; then the dive is
    /// stored and the form refreshed.
    void importProfil();
    /// Whether any box is on: something is waiting to be imported.
    bool hasPending() const;
    /// The depths as the window shows them now: typed ones when they are to replace the dive's.
    NumberArray depthsShown() const;

private:
    bool isSameDive() const;
    void show(bool keepsMarked);
    void controlChanged(int control);
    void controlLeft(int control);

    Carnet& _carnet;
    Form _form;
    QString _title;
    // Whose profile is shown. A dive is replaced by another record whenever it is stored, and moves when the
    // list is sorted, but never both at once.
    RecordPointer<Plongee> _dive;
    qsizetype _row = -1;
    qsizetype _dives = 0;
    bool _isFilling = false;
};

namespace profilecontrol {
inline constexpr ControlName eraseAll{"eraseAllSwitch"};
}  // namespace profilecontrol

}  // namespace sargan
