#include "interchange/Formats.h"

#include "interchange/Handheld.h"
#include "interchange/TextExport.h"
#include "interchange/Udcf.h"
#include "interchange/Uddf.h"
#include "platform/files/SafeFile.h"

namespace sargan {

std::span<const ExportFormat> exportFormats() {
    static constexpr ExportFormat formats[] = {
        {"csv-semicolon",
         "Export Carnet CSV (Point-virgule)",
         {"Interface", "Dives as CSV with semicolons", "Dives as CSV with semicolons"},
         "csv",
         &exportCarnetCsvSemicolon},
        {"csv-comma",
         "Export Carnet CSV (Virgule)",
         {"Interface", "Dives as CSV with commas", "Dives as CSV with commas"},
         "csv",
         &exportCarnetCsvComma},
        {"txt-tab",
         "Export Carnet TXT (Tabulation)",
         {"Interface", "Dives as text with tabs", "Dives as text with tabs"},
         "txt",
         &exportCarnetTxt},
        {"profiles-csv",
         "Export Profils CSV (Virgule)",
         {"Interface", "Profiles as CSV with commas", "Profiles as CSV with commas"},
         "csv",
         &exportProfilsCsv},
        {"udcf",
         "Export UDCF (Universal Dive Computer Format)",
         {"Interface", "UDCF (Universal Dive Computer Format)", "UDCF (Universal Dive Computer Format)"},
         "udcf",
         &exportUDCFFormat},
        {"uddf",
         "Export UDDF (Universal Dive Data Format)",
         {"Interface", "UDDF (Universal Dive Data Format)", "UDDF (Universal Dive Data Format)"},
         "uddf",
         &exportUDDFFormat},
    };
    return formats;
}

const ExportFormat* exportFormatNamed(const QString& name) {
    for (const ExportFormat& format : exportFormats())
        if (name == QLatin1String(format.shortName) || name == QLatin1String(format.typeName)) return &format;
    return nullptr;
}

std::span<const DiveReader* const> diveReaders() {
    static const UddfReader uddf;
    static const UdcfReader udcf;
    static const HandheldReader handheld;
    static const DiveReader* const readers[] = {&uddf, &udcf, &handheld};
    return readers;
}

const DiveReader* diveReaderNamed(const QString& name) {
    for (const DiveReader* reader : diveReaders())
        if (name == QLatin1String(reader->name())) return reader;
    return nullptr;
}

const DiveReader* diveReaderFor(const QByteArray& bytes) {
    for (const DiveReader* reader : diveReaders())
        if (reader->recognises(bytes)) return reader;
    return nullptr;
}

const DiveReader* diveReaderOfFile(const QString& path) {
    try {
        return diveReaderFor(readFile(path));
    } catch (const ReadError&) {
        return nullptr;
    }
}

}  // namespace sargan
