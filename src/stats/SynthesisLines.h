#pragma once

#include <array>
#include <span>

#include "logbook/Plongee.h"
#include "platform/form/Control.h"
#include "platform/text/Strings.h"

namespace sargan {

/// Where a dive keeps a whole number.
using IntOf = const Int& (Plongee::*)() const;

/// A dive while it is reported on.
struct ReportedDive {
    const Plongee& dive;
    const Strings& strings;
    bool usUnits;
};

enum class LineKind : char {
    Title,    ///< the dive's heading
    Section,  ///< a heading of items
    Heading,  ///< a smaller one: its label or, without one, its value
    Item,     ///< label and value
    Named,    ///< a value that brings its own label, which ends in " : "
    Text,     ///< a value that brings its own line break
};

/// One line of the report. A null value leaves the line out.
struct ReportLine {
    LineKind kind;
    Message<> label;
    QString (*value)(const ReportedDive&);
};

/// The report's lines in order, in parts.
std::array<std::span<const ReportLine>, 3> reportParts();
std::span<const ReportLine> generalLines();
std::span<const ReportLine> gasLines();
std::span<const ReportLine> equipmentLines();

// --- The vocabulary of the lines ---

/// A text as it stands; an absent one is an empty value, not a missing line.
inline QString orEmpty(const QString& text) {
    return text.isNull() ? QStringLiteral("") : text;
}
/// "12 bar".
inline QString withUnit(const QString& number, const char* unit) {
    return number + u' ' + QLatin1String(unit);
}
inline QString withUnit(qint64 number, const char* unit) {
    return withUnit(QString::number(number), unit);
}
/// A menu's word for a code; null for a code that the menu does not have.
QString wordOf(std::span<const MenuItem> menu, qint32 code, const Strings& strings);
/// "18 m" or "18 ft": the unit alone changes.
QString depthText(const QString& number, const ReportedDive& reported);
/// "18 °C" or "18 °F"; null for a temperature that was not recorded.
QString temperatureText(qint32 degrees, const ReportedDive& reported);
/// What the decompression lines say of one of the six stops; null when there is none.
QString stopText(const ReportedDive& reported, int level);
/// A mix in words by the code of its gas: "Trimix 18/45"; null for an unknown code.
QString mixText(qint32 gas, qint32 oxygen, qint32 helium);

}  // namespace sargan
