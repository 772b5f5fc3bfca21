#include "calculators/ui/CalculatorWindows.h"

#include <QMenu>

#include "calculators/WindowBuilder.h"

namespace sargan {

CalculatorWindow& CalculatorWindows::display(const CalculatorSpec& spec) {
    auto& window = _windows[&spec];
    if (!window) window = std::make_unique<CalculatorWindow>(spec, _desk);
    window->bringToFront();
    return *window;
}

CalculatorWindow* CalculatorWindows::display(QStringView name) {
    const CalculatorSpec* spec = findCalculator(name);
    return spec ? &display(*spec) : nullptr;
}

QMenu* CalculatorWindows::makeMenu(QWidget* parent) {
    const Strings& strings = _desk.strings;
    auto* menu = new QMenu(strings.text(calculatorWord("Calculators")), parent);
    menu->setObjectName(QStringLiteral("calculatorsMenu"));
    QMenu* subjectMenu = nullptr;
    const char* subject = nullptr;
    for (const CalculatorSpec& spec : calculatorSpecs()) {
        if (qstrcmp(subject, spec.subject.key) != 0) {
            subjectMenu = menu->addMenu(strings.text(spec.subject));
            subject = spec.subject.key;
        }
        QAction* action = subjectMenu->addAction(strings.text(spec.layout.title));
        action->setObjectName(QLatin1String(spec.action));
        QObject::connect(action, &QAction::triggered, menu, [this, &spec] { display(spec); });
    }
    return menu;
}

}  // namespace sargan
