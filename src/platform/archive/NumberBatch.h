#pragma once

#include <vector>

#include "platform/archive/NumberArray.h"

/// Lists of numbers in one go, for whoever has or wants all numbers of a list in one kind.
namespace sargan {

/// A list of these numbers, all of kind float.
NumberArray arrayOfFloats(std::span<const float> values);

/// The list's numbers as doubles, in place of what `values` held; NaN for a kept object.
void copyNumbers(const NumberArray& numbers, std::vector<double>& values);

}  // namespace sargan
