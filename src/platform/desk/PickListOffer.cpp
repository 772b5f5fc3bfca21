#include "platform/desk/PickListOffer.h"

namespace sargan {

namespace {

void addItemFromComboBox(Desk& desk, const QString& key, const QString& text) {
    desk.prompt.beep();
    const QString question = desk.strings.text(Message<QString>{"Main", "Add item to ComboBox"}, text);
    const QStringList buttons{desk.strings.text({"Main", "Yes"}), desk.strings.text({"Main", "No"})};
    if (desk.prompt.ask(question, buttons) == 0) desk.pickLists.append(key, text);
    desk.pickLists.sortAndStore(key);
}

}  // namespace

void offerToPickList(Desk& desk, const QString& key, const QString& text) {
    if (text.trimmed().isEmpty() || desk.pickLists.list(key).contains(text)) return;
    addItemFromComboBox(desk, key, text);
}

}  // namespace sargan
