#pragma once

#include "logbook/DiveForm.h"
#include "profile/Profil.h"

namespace sargan {

/// The graph of the dive in the form, as it stands there now, stored or not.
Profil profilOf(const DiveForm& form);
/// The graph of a dive.
Profil profilOf(const Plongee& dive);

/// How the user has set that profiles look.
ProfilStyle profilStyle(const UserDefaults& defaults);

}  // namespace sargan
