#pragma once

#include "interchange/XmlWriter.h"
#include "logbook/Carnet.h"

/// The part of the files that UDCF and the UDDF export share: the dives in UDCF's own words.
namespace sargan::diveelements {

/// How the two spell a dive's date and time.
struct Spelling {
    const char *date, *year, *month, *day, *time, *hour, *minute;
};

/// Who made the file, where more is to be found, and when it was made.
void writeComments(XmlWriter& xml, const QDateTime& now);
/// The number of dives.
void writeAddInfo(XmlWriter& xml, const Carnet& carnet);
/// All dives in list order. Throws DocumentError for a dive whose marks are fewer than its depths.
void writeDives(XmlWriter& xml, const Carnet& carnet, const Spelling& spelling);

/// Bytes that a logbook's file is likely to need.
qsizetype likelySize(const Carnet& carnet);

inline constexpr char webAddress[] = "https://sargan.example/";
inline constexpr char contactAddress[] = "contact@sargan.example";

}  // namespace sargan::diveelements
