#pragma once

#include <QStringView>

namespace sargan {

/// The leading decimal number of a text, blanks before it passed over; a comma counts as a point.
/// 0 when there is none ("-", "", "abc").
double leadingNumber(QStringView text);

/// The leading integer of a text, clamped to int32; 0 when there is none. "12.9" gives 12.
int leadingInteger(QStringView text);

}  // namespace sargan
