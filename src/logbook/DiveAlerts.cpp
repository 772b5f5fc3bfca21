#include "logbook/DiveAlerts.h"

#include "logbook/NumberList.h"

namespace sargan {

void DiveAlerts::alert(const QString& text) {
    for (DiveAlert& known : _list)
        if (known.text == text) {
            if (known.dives.last() != _number) known.dives << _number;
            return;
        }
    _list << DiveAlert{text, {_number}};
}

QString told(const DiveAlert& alert, const Strings& strings) {
    return alert.text + u' ' +
           strings.text(Message<QString>{"Interface", "Dives concerned: %@.", "Dives concerned: %@."},
                        numberList(alert.dives));
}

Desk deskWithPrompt(const Desk& desk, Prompt& prompt) {
    return {prompt, desk.defaults, desk.strings, desk.notifications, desk.pickLists, desk.clock, desk.log};
}

}  // namespace sargan
