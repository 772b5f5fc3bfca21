#include "calculators/CalculatorSpec.h"

#include "calculators/CalculatorWindows.h"

namespace sargan {

std::span<const CalculatorSpec> calculatorSpecs() {
    static const QList<CalculatorSpec> all =
        nitroxWindows() + trimixWindows() + rebreatherWindows() + conversionWindows();
    return {all.constData(), std::size_t(all.size())};
}

const CalculatorSpec* findCalculator(QStringView name) {
    for (const CalculatorSpec& spec : calculatorSpecs())
        if (name == QLatin1String(spec.layout.name) || name == QLatin1String(spec.action)) return &spec;
    return nullptr;
}

}  // namespace sargan
