#pragma once

#include <QtTest>

#include "support/TestDesk.h"

// Each runs one test class of this folder and returns the number of its failures.
int runCarnetListTest(int argc, char** argv);
int runCarnetSearchTest(int argc, char** argv);
int runCarnetSelectionTest(int argc, char** argv);
int runCarnetTypesTest(int argc, char** argv);
int runDiveBlankTest(int argc, char** argv);
int runDiveCellColorTest(int argc, char** argv);
int runDiveCellTextTest(int argc, char** argv);
int runDiveFiguresTest(int argc, char** argv);
int runDiveFormTest(int argc, char** argv);
int runDiveMappingTest(int argc, char** argv);
int runDiveMenusTest(int argc, char** argv);
int runDiveOfferTest(int argc, char** argv);
int runDiveProfileFormTest(int argc, char** argv);
int runDiveTableSortTest(int argc, char** argv);
int runDiveTableSourceTest(int argc, char** argv);

namespace sargan {

inline Plongee diveNumbered(int number, const QString& place = {}) {
    Plongee dive;
    dive.setNoPlongee(number);
    dive.setO2Mix(21);
    dive.setO2Mix_2(21);
    if (!place.isNull()) dive.setLieu(place);
    return dive;
}

/// A logbook with these dives in it, saved as far as its edited mark knows.
inline void fillLogbook(Carnet& carnet, const QList<Plongee>& dives) {
    Records<Plongee> records;
    for (const Plongee& dive : dives) records.append(std::make_shared<const Plongee>(dive));
    carnet.readBytes(writeRecords(records, plongeeClass()), QStringLiteral("Carnet de plongee"));
}

}  // namespace sargan
