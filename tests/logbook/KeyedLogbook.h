#pragma once

#include "support/TestDesk.h"

namespace logbooktest {

/// A logbook on a desk of its own that shows texts as their keys.
struct Logbook {
    sargan::TestDesk desk;
    std::unique_ptr<sargan::Carnet> carnet;

    Logbook() {
        desk.strings.setLanguage(sargan::Strings::Language::Keys);
        carnet = desk.newLogbook();
    }

    /// Adds a dive with these controls filled.
    void add(const QList<std::pair<QString, QString>>& values = {}) {
        carnet->addDive([&] {
            for (const auto& [control, value] : values) fill(control, value);
        });
    }
    /// As Tab would leave the control; every word is in its pick list already, so that nothing is asked.
    void fill(const QString& control, const QString& value) {
        sargan::Form& form = carnet->form();
        const int place = form.find(control);
        if (const char* list = form.spec(place).pickList) desk.pickLists.append(QLatin1String(list), value);
        form.fill(place, value);
    }
    QString text(const QString& control) const { return carnet->form().text(carnet->form().find(control)); }
    int tag(const QString& control) const { return carnet->form().tag(carnet->form().find(control)); }

    QList<int> numbers() const {
        QList<int> all;
        for (const auto& dive : carnet->records()) all << dive->noPlongee();
        return all;
    }
    QStringList places() const {
        QStringList all;
        for (const auto& dive : carnet->records()) all << dive->lieu();
        return all;
    }
    /// Puts dives with these numbers in place of the list, without the form.
    void setNumbers(const QList<int>& numbers) {
        sargan::Records<sargan::Plongee> dives;
        for (const int number : numbers) {
            sargan::Plongee dive;
            dive.setNoPlongee(number);
            dive.setO2Mix(21);
            dive.setO2Mix_2(21);
            dives.append(std::make_shared<const sargan::Plongee>(dive));
        }
        carnet->perform(QStringLiteral("Set"), dives, {});
    }
};

}  // namespace logbooktest
