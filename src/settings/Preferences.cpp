#include "settings/Preferences.h"

#include <QJsonObject>
#include <algorithm>

#include "settings/InterfaceChoice.h"
#include "settings/PreferenceTable.h"

namespace sargan {

namespace {

constexpr ControlName languagePopUp{"languagePopUp"};
constexpr ControlName appearancePopUp{"appearancePopUp"};

}  // namespace

Preferences::Preferences(Desk& desk) : _desk(desk), _form(preferenceControls()) {
    addActions();
    _form.onEndEditing = [this](int control) { choiceMade(control); };
    showSettings();
}

void Preferences::addActions() {
    const auto add = [this](const char* name, void (Preferences::*action)()) {
        _form.addAction(QLatin1String(name), [this, action] { (this->*action)(); });
    };
    const auto addPost = [this](const char* name, void (Preferences::*action)(const void*)) {
        _form.addAction(QLatin1String(name), [this, action] { (this->*action)(this); });
    };
    add("awakeFromNib", &Preferences::awakeFromNib);
    add("savePrefs", &Preferences::savePrefs);
    add("resetPreferences", &Preferences::resetPreferences);
    add("updateUI", &Preferences::updateUI);
    addPost("updateTableViewNotification", &Preferences::updateTableViewNotification);
    addPost("updateColumnsTableViewNotification", &Preferences::updateColumnsTableViewNotification);
    addPost("updateEditDiveNotification", &Preferences::updateEditDiveNotification);
    addPost("updateProfileNotification", &Preferences::updateProfileNotification);
    addPost("updateDecoNotification", &Preferences::updateDecoNotification);
    addPost("updateRebreatherNotification", &Preferences::updateRebreatherNotification);
    addPost("updateInterface", &Preferences::updateInterface);
    for (int pane = 0; pane < int(preferencesLayout().panes.size()); ++pane)
        _form.addAction(QStringLiteral("goView_%1").arg(pane + 1), [this, pane] {
            if (onGoView) onGoView(pane);
        });
}

void Preferences::awakeFromNib() {
    for (const Preference& preference : preferences())
        if (preference.storedAs == StoredAs::Column) showPreference(preference, _desk.defaults, _form);
}

void Preferences::showSettings() {
    for (const Preference& preference : preferences()) showPreference(preference, _desk.defaults, _form);
    _form.setTag(languagePopUp, interfacechoice::language(_desk.defaults));
    _form.setTag(appearancePopUp, interfacechoice::appearance(_desk.defaults));
    awakeFromNib();
    updateUI();
}

void Preferences::savePrefs() {
    QJsonObject values;
    for (const Preference& preference : preferences())
        values.insert(QLatin1String(preference.key), preferenceValue(preference, _form));
    _desk.defaults.storeAll(values);
}

void Preferences::resetPreferences() {
    for (const Preference& preference : preferences()) resetPreference(preference, _form);
}

void Preferences::updateUI() {
    show({"default weight", "us units", "stop interval", "low GF", "high GF", "soda lime", "cell life"});
    showTemperatureUnit();
}

void Preferences::showTemperatureUnit() {
    const bool isFahrenheit = _desk.defaults.boolean(QStringLiteral("us units"));
    _form.setText(ControlName{"temperatureCaption"},
                  _desk.strings.text(isFahrenheit ? Message<>{"Carnet", "Degree Farenheit"}
                                                  : Message<>{"Carnet", "Degree Celsius"}));
}

void Preferences::updateTableViewNotification(const void* sender) {
    post("updateTableView", sender);
    updateUI();
}

void Preferences::updateColumnsTableViewNotification(const void* sender) {
    post("updateColumnsTableView", sender);
    updateUI();
}

void Preferences::updateEditDiveNotification(const void* sender) {
    post("updateEditDive", sender);
    updateUI();
}

void Preferences::updateProfileNotification(const void* sender) {
    post("profile", sender);
    updateUI();
}

void Preferences::updateDecoNotification(const void* sender) {
    post("updateDeco", sender);
    store({"stop interval", "low GF", "high GF", "default weight"});
    updateUI();
}

void Preferences::updateRebreatherNotification(const void* sender) {
    post("updateRebreather", sender);
    store({"soda lime", "cell life"});
    updateUI();
}

void Preferences::updateInterface(const void* sender) {
    updateUI();
    updateTableViewNotification(sender);
    updateProfileNotification(sender);
    updateEditDiveNotification(sender);
    updateDecoNotification(sender);
    updateRebreatherNotification(sender);
}

void Preferences::post(const char* name, const void* sender) {
    _desk.notifications.post(QLatin1String(name), sender);
}

void Preferences::store(std::initializer_list<const char*> keys) {
    QJsonObject values;
    for (const char* key : keys) values.insert(QLatin1String(key), preferenceValue(preferenceOf(key), _form));
    _desk.defaults.storeAll(values);
}

void Preferences::show(std::initializer_list<const char*> keys) {
    for (const char* key : keys) showPreference(preferenceOf(key), _desk.defaults, _form);
}

bool Preferences::isEdited() const {
    Form settings(preferenceControls());
    return std::ranges::any_of(preferences(), [&](const Preference& preference) {
        showPreference(preference, _desk.defaults, settings);
        return preferenceValue(preference, settings) != preferenceValue(preference, _form);
    });
}

void Preferences::choiceMade(int control) {
    if (control == _form[languagePopUp]) {
        interfacechoice::setLanguage(_desk.defaults, _form.tag(control));
        post(interfacechoice::languageChanged, this);
        // Not updateUI: what was typed and is not saved yet is to stay.
        showTemperatureUnit();
    } else if (control == _form[appearancePopUp]) {
        interfacechoice::setAppearance(_desk.defaults, _form.tag(control));
        post(interfacechoice::appearanceChanged, this);
    }
}

}  // namespace sargan
