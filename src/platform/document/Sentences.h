#pragma once

#include <QString>
#include <exception>

namespace sargan {

class Strings;

/// What went wrong, as a sentence in the current language where the failure has a translation.
QString sentenceIn(const Strings& strings, const std::exception& error);

}  // namespace sargan
