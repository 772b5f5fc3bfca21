#pragma once

#include "platform/document/TableSource.h"

namespace sargan {

/// The colour of a cell's text; invalid for the usual one. Black, which rules give as if paper were white,
/// is the usual colour where the background lets it be, and white on a dark one.
QColor inkOf(const TableCell& cell);

}  // namespace sargan
