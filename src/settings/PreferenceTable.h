#pragma once

#include <QJsonValue>
#include <span>

#include "platform/desk/UserDefaults.h"
#include "platform/form/Form.h"

namespace sargan {

/// How a control's value is kept in the settings.
enum class StoredAs : char {
    Object,  ///< what the field holds: a number when all of it is one, else its text
    Text,
    Switch,  ///< 0 or 1
    Column,  ///< 0 or 1: whether a column of the logbook is shown
    Tag,     ///< a pop-up's
    Color,
};

/// One setting of the preferences window.
struct Preference {
    const char* key;
    const char* control;
    StoredAs storedAs;
    const char* reset;            ///< what Reset puts into the control, as a text; nullptr: nothing
    const char* unset = nullptr;  ///< what the control shows while nothing that it can show is stored
};

/// In the order in which they are saved.
std::span<const Preference> preferences();
/// The setting behind a control, by its key; throws std::out_of_range.
const Preference& preferenceOf(const char* key);

/// The value that saving stores for a setting.
QJsonValue preferenceValue(const Preference& preference, const Form& form);
/// The setting's effective value into its control.
void showPreference(const Preference& preference, const UserDefaults& defaults, Form& form);
/// Puts what Reset says into the control.
void resetPreference(const Preference& preference, Form& form);

/// The controls of the preferences window.
std::span<const ControlSpec> preferenceControls();

}  // namespace sargan
