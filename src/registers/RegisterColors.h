#pragma once

#include "platform/form/SystemColors.h"

namespace sargan {

struct Desk;

/// Colour rules of columns that are always of one colour.
namespace registercolor {
template <class R>
QColor brown(const R&, const Desk&) {
    return systemcolor::brown;
}
template <class R>
QColor green(const R&, const Desk&) {
    return systemcolor::green;
}
template <class R>
QColor gray(const R&, const Desk&) {
    return systemcolor::gray;
}
}  // namespace registercolor

}  // namespace sargan
