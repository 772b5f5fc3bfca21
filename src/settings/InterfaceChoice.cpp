#include "settings/InterfaceChoice.h"

namespace sargan {

namespace interfacechoice {

namespace {

constexpr const char* languageKey = "language";
constexpr const char* appearanceKey = "appearance";
constexpr const char* languageWords[] = {"system", "en", "fr"};
constexpr const char* appearanceWords[] = {"system", "light", "dark"};

int tagOf(std::span<const char* const> words, const QString& word) {
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&word](const char* known) { return word == QLatin1String(known); });
    return found == words.end() ? 0 : int(found - words.begin());
}

void store(UserDefaults& defaults, const char* key, std::span<const char* const> words, int tag) {
    const bool isKnown = tag >= 0 && tag < int(words.size());
    defaults.store(QLatin1String(key), QLatin1String(words[std::size_t(isKnown ? tag : 0)]));
}

}  // namespace

LanguageTag language(const UserDefaults& defaults) {
    return LanguageTag(tagOf(languageWords, defaults.text(QLatin1String(languageKey))));
}

AppearanceTag appearance(const UserDefaults& defaults) {
    return AppearanceTag(tagOf(appearanceWords, defaults.text(QLatin1String(appearanceKey))));
}

void setLanguage(UserDefaults& defaults, int tag) {
    store(defaults, languageKey, languageWords, tag);
}

void setAppearance(UserDefaults& defaults, int tag) {
    store(defaults, appearanceKey, appearanceWords, tag);
}

}  // namespace interfacechoice

Strings::Language preferredLanguage(const UserDefaults& defaults) {
    switch (interfacechoice::language(defaults)) {
        case interfacechoice::English:
            return Strings::Language::English;
        case interfacechoice::French:
            return Strings::Language::French;
        case interfacechoice::SystemLanguage:
            break;
    }
    return Strings::systemLanguage();
}

}  // namespace sargan
