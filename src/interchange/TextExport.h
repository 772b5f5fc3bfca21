#pragma once

#include "logbook/Carnet.h"

namespace sargan {

/// One line per dive, after a line of titles. `ends` stands at both ends of a line, not around each field;
/// nothing inside a field is escaped. The titles end in CR, the dives in LF.
QString exportTextCSVFormat(const Carnet& carnet, const QString& separator, const QString& ends);

/// One line per profile sample. The columns titled CEIL and SURF hold each other's marks.
QString exportProfileCSVFormat(const Carnet& carnet, const QString& separator);

/// The text exports as they are saved, each with its line in the log. The first is UTF-8, the others are
/// Mac OS Roman: there the person is told which dives lost characters that it does not have.
QByteArray exportCarnetCsvSemicolon(const Carnet& carnet);
QByteArray exportCarnetCsvComma(const Carnet& carnet);
QByteArray exportCarnetTxt(const Carnet& carnet);
QByteArray exportProfilsCsv(const Carnet& carnet);

}  // namespace sargan
