#pragma once

#include <QList>
#include <QString>
#include <vector>

#include "logbook/PlongeeArchive.h"

/// The dive's archive class with one mistake in it.
struct SlotMutant {
    QString mistake;
    std::vector<sargan::Slot<sargan::Plongee>> slots;
    bool hasHook = true;  ///< whether the class keeps its own finish hook
};

/// Each slot dropped, doubled, swapped with its neighbour.
std::vector<SlotMutant> misplacedSlots();
/// Each version range shifted by one at each end; ends that are open closed inside the known versions.
std::vector<SlotMutant> shiftedRanges();
/// Each real number in each other form.
std::vector<SlotMutant> changedForms();
/// Each slot written from, and each slot read into, another field of its type.
std::vector<SlotMutant> exchangedFields();
