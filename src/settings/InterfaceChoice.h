#pragma once

#include <optional>

#include "platform/desk/UserDefaults.h"
#include "platform/text/Strings.h"

namespace sargan {

/// How the program's windows look and in which language, as the person chose it. Each choice is stored as a
/// word; without one, or with an unknown one, the system's own holds.
namespace interfacechoice {

enum LanguageTag { SystemLanguage, English, French };
enum AppearanceTag { SystemAppearance, Light, Dark };

LanguageTag language(const UserDefaults& defaults);
AppearanceTag appearance(const UserDefaults& defaults);
void setLanguage(UserDefaults& defaults, int tag);
void setAppearance(UserDefaults& defaults, int tag);

/// Posted after such a change has been stored.
inline constexpr const char* languageChanged = "updateLanguage";
inline constexpr const char* appearanceChanged = "updateAppearance";

}  // namespace interfacechoice

/// The chosen language; the system's when none was chosen.
Strings::Language preferredLanguage(const UserDefaults& defaults);

}  // namespace sargan
