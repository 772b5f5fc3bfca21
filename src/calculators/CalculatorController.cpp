#include "calculators/CalculatorController.h"

namespace sargan {

void CalculatorController::offer(const char* action, std::function<void()> run) {
    const QLatin1String name(action);
    for (const char* own : _spec.actions)
        if (name == QLatin1String(own)) _form.addAction(name, std::move(run));
}

QString filled(QStringView format, std::initializer_list<double> numbers) {
    const std::vector<FormatArgument> arguments(numbers.begin(), numbers.end());
    return fillFormat(format, arguments);
}

}  // namespace sargan
