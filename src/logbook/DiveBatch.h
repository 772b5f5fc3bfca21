#pragma once

#include "logbook/Carnet.h"

namespace sargan {

/// Many dives on their way into a logbook: each is built as addDive builds one, through a dive form of the
/// batch's own, so that neither the form on screen nor the table hears of every single dive. They become
/// the logbook's as one undo step; a batch that is dropped before leaves the logbook as it was.
class DiveBatch {
public:
    /// `prompt` takes what the form has to say about the dives.
    DiveBatch(Carnet& carnet, Prompt& prompt);

    /// Blanks the form, numbers the dive after the last one, lets `fill` put in what is known, and builds it.
    void add(const std::function<void(DiveForm&)>& fill);
    qsizetype count() const { return _dives.size() - _before; }
    /// The number of the dive that is being added, or was added last.
    int number() const { return _number; }
    /// Appends the dives to the logbook and selects the last one. Nothing to add is no undo step. Answers
    /// the first row, or -1 when nothing was added.
    qsizetype commit();

private:
    Carnet& _carnet;
    Desk _desk;
    DiveForm _form;
    Records<Plongee> _dives;  ///< the logbook's and the new ones
    qsizetype _before;
    int _number = 0;
};

}  // namespace sargan
