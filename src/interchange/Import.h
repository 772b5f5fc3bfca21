#pragma once

#include "interchange/DiveReader.h"
#include "logbook/Carnet.h"
#include "logbook/DiveAlerts.h"

namespace sargan {

/// What the dive form says about the dives that are read: as it happens, or once for all of them at the end.
enum class ImportAlerts { AsTheyHappen, Collected };

struct ImportResult {
    QStringList files;         ///< without their folders
    qsizetype dives = 0;       ///< added to the logbook
    qsizetype passedOver = 0;  ///< in groups of the files that the format does not read
    bool isCancelled = false;  ///< then nothing was added
    QList<DiveAlert> alerts;   ///< when they were collected
    Message<> otherFormat{nullptr, nullptr, nullptr};  ///< what a file without dives looks like

    /// How it went, in the current language.
    QString sentence(const Strings& strings) const;
};

/// Appends the dives of all files to the logbook, in order, as one undo step. When a file cannot be read or
/// the person stops it, nothing is added. Throws ReadError or DocumentError.
ImportResult importDives(Carnet& carnet, const QStringList& paths, const DiveReader& reader,
                         ImportAlerts alerts);

/// The same from bytes in memory.
ImportResult importBytes(Carnet& carnet, const QByteArray& bytes, const DiveReader& reader,
                         ImportAlerts alerts);

}  // namespace sargan
