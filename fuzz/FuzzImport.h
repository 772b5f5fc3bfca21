#pragma once

#include <QCoreApplication>
#include <cstdlib>

#include "bench/QuietDesk.h"
#include "interchange/Formats.h"
#include "interchange/Import.h"
#include "interchange/ImportError.h"

/// Any bytes as a file of one format: dives or a sentence, never anything else, and a sentence leaves the
/// logbook alone. What was read can be saved, read again and exported.
namespace sargan::fuzz {

struct Bench : QuietDesk {
    // Making a logbook costs more than most inputs, so these are emptied and used again.
    Carnet carnet{kinds.standard(), desk, saveTypes};
    Carnet again{kinds.standard(), desk, saveTypes};
};

inline void require(bool holds) {
    if (!holds) std::abort();
}

inline QByteArray exported(Carnet& carnet, const ExportFormat& format) {
    return carnet.dataRepresentationOfType(QLatin1String(format.typeName));
}

inline void checkWhatWasRead(Bench& bench) {
    const QString type = bench.carnet.kind().currentTypeName(bench.desk);
    const QByteArray saved = bench.carnet.dataRepresentationOfType(type);
    bench.again.readBytes(saved, type);
    require(bench.again.dataRepresentationOfType(type) == saved);
    for (const ExportFormat& format : exportFormats()) require(!exported(bench.carnet, format).isEmpty());
    const QString udcf = QStringLiteral("udcf");
    const ImportResult back = importBytes(bench.again, exported(bench.carnet, *exportFormatNamed(udcf)),
                                          *diveReaderNamed(udcf), ImportAlerts::Collected);
    require(back.dives == bench.carnet.count());
}

inline void importOne(const char* format, const uint8_t* data, size_t size) {
    static Bench bench;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    const DiveReader& reader = *diveReaderNamed(QLatin1String(format));
    reader.recognises(bytes);
    Carnet& carnet = bench.carnet;
    if (carnet.count() > 0) carnet.perform(QStringLiteral("Import dives"), {}, {});
    try {
        const ImportResult result = importBytes(carnet, bytes, reader, ImportAlerts::Collected);
        require(result.dives == carnet.count() && !result.sentence(bench.strings).isEmpty());
    } catch (const ImportError& error) {
        require(error.place().line > 0 && error.place().column > 0 && !sentenceOf(error).isEmpty());
        require(carnet.count() == 0);
    } catch (const DocumentError&) {
        require(carnet.count() == 0);
    }
    // Saving and exporting cost many times what reading does, so only some inputs go all the way.
    constexpr size_t oneIn = 16;
    if (carnet.count() > 0 && qHash(bytes) % oneIn == 0) checkWhatWasRead(bench);
}

}  // namespace sargan::fuzz
