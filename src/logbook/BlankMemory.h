#pragma once

#include "logbook/Plongee.h"
#include "platform/form/Form.h"

namespace sargan {

/// The blank dive form of a batch, the dive that it makes, and what was changed since the form was blank: a
/// file tells of a dozen controls in nearly two hundred.
class BlankMemory {
public:
    /// The form as it stands now is the blank one, and this is the dive that it makes.
    BlankMemory(const Form& form, Plongee dive);

    const Plongee& dive() const { return _dive; }
    /// A control has another value than before.
    void note(int control);
    /// The controls noted since the form was blank.
    const std::vector<int>& changed() const { return _changed; }
    /// Gives them back the values of the blank form.
    void restore(Form& form);

private:
    std::vector<ControlState> _states;
    Plongee _dive;
    std::vector<int> _changed;
    std::vector<bool> _isChanged;  ///< by control
};

}  // namespace sargan
