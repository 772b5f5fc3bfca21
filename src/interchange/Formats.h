#pragma once

#include <span>

#include "interchange/DiveReader.h"
#include "logbook/Carnet.h"

namespace sargan {

/// A format that a logbook can be saved as beside its own.
struct ExportFormat {
    const char* shortName;  ///< on the command line
    const char* typeName;   ///< by which saving dispatches
    Message<> title;
    const char* extension;  ///< of its files, without the dot
    QByteArray (*write)(const Carnet&);
};

std::span<const ExportFormat> exportFormats();
/// By short name or type name; null when there is none.
const ExportFormat* exportFormatNamed(const QString& name);

/// All formats that dives can be read from.
std::span<const DiveReader* const> diveReaders();
/// By its name on the command line; null when there is none.
const DiveReader* diveReaderNamed(const QString& name);
/// The one that these bytes look like; null when they look like none.
const DiveReader* diveReaderFor(const QByteArray& bytes);
/// The same for a file, null also when it cannot be read.
const DiveReader* diveReaderOfFile(const QString& path);

}  // namespace sargan
