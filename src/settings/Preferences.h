#pragma once

#include <functional>

#include "platform/desk/Desk.h"
#include "platform/form/Form.h"
#include "platform/form/WindowLayout.h"

namespace sargan {

/// The preferences: controls that show the settings, saved when the person says so, and the broadcasts by
/// which open documents learn of a change. Language and appearance of the program stand among them but are
/// stored and broadcast at once, as the menus of a program are.
class Preferences {
public:
    explicit Preferences(Desk& desk);

    Form& form() { return _form; }
    const Form& form() const { return _form; }

    /// The check boxes of the logbook's columns from their keys.
    void awakeFromNib();
    /// Every control from the settings, as the window does when it opens.
    void showSettings();
    /// Every control's value under its key, in one write. Nobody is told.
    void savePrefs();
    /// The controls to their first values; the settings stay as they are.
    void resetPreferences();
    /// A few controls, and the unit of the temperature, from the settings.
    void updateUI();
    /// The caption behind the low temperature, in the language and the unit of now.
    void showTemperatureUnit();

    void updateTableViewNotification(const void* sender);
    void updateColumnsTableViewNotification(const void* sender);
    void updateEditDiveNotification(const void* sender);
    void updateProfileNotification(const void* sender);
    /// These two post first and store their own controls then: whoever reads the settings while being told
    /// sees what was stored before.
    void updateDecoNotification(const void* sender);
    void updateRebreatherNotification(const void* sender);
    /// All of them but the one about columns.
    void updateInterface(const void* sender);

    /// Whether saving would change what the settings say.
    bool isEdited() const;

    /// What goView_1 to goView_6 do: shows that pane, counted from 0.
    std::function<void(int pane)> onGoView;

private:
    void addActions();
    void post(const char* name, const void* sender);
    void store(std::initializer_list<const char*> keys);
    void show(std::initializer_list<const char*> keys);
    void choiceMade(int control);

    Desk& _desk;
    Form _form;
};

/// The window: six panes, named as the items of its toolbar.
const WindowLayout& preferencesLayout();

}  // namespace sargan
