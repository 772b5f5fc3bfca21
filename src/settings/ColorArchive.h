#pragma once

#include <QByteArray>
#include <optional>

#include "platform/form/ColorText.h"

namespace sargan {

/// An archive whose root is one colour, as the preferences keep it: calibrated red, green, blue, alpha.
QByteArray archivedColor(const ColorComponents& components);

/// The colour of such an archive, also of the other colour spaces whose layout is known: device RGB, white,
/// CMYK, named. None for bytes that are no archive, hold anything else, or hold a component that is no
/// number. Components beyond 0 to 1 are brought to the nearer end.
std::optional<ColorComponents> unarchivedColor(const QByteArray& bytes);

}  // namespace sargan
