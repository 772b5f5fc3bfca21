#pragma once

#include "calculators/CalculatorSpec.h"

/// The windows of each subject, in the order of the menu.
namespace sargan {

QList<CalculatorSpec> nitroxWindows();
QList<CalculatorSpec> trimixWindows();
QList<CalculatorSpec> rebreatherWindows();
QList<CalculatorSpec> conversionWindows();

}  // namespace sargan
