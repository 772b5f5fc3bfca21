#pragma once

#include <optional>

#include "platform/archive/NumberArray.h"

/// A dive's profile as its seven lists hold it, and as a person reads and types them: one value a line.
/// Sample i of every list is the same instant; nothing makes the lists equally long.
namespace sargan::profile {

/// Whether there is a profile to speak of: a single sample is what a dive without one has.
inline bool isPresent(const NumberArray& depths) {
    return depths.size() > 1;
}

/// The list itself, or for an empty or absent one the list of one sample at the surface: 0.0 of a real
/// quantity (depth, pressure), 0 of a flag.
NumberArray orSurface(const NumberArray& list, bool isReal);

/// The numbers as lines without a newline at the end. Precision 1: one decimal; 0: their plain text; any
/// other: empty lines.
QString editProfil(const NumberArray& list, int precision);

/// A text's lines as reals (metres, bar), comma or point alike, every digit kept; what is no number is 0.
/// An empty text is one line.
NumberArray realsFrom(QStringView text);
/// A text's lines as flags: their leading whole numbers, 0 for what is none.
NumberArray flagsFrom(QStringView text);

/// The greatest sample in single precision, as depths are compared; 0 for a list without one.
float greatest(const NumberArray& list);

/// Seconds between two samples; none for a code that means nothing.
std::optional<double> sampleInterval(int samplingRate);

}  // namespace sargan::profile
