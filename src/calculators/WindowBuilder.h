#pragma once

#include "calculators/CalculatorController.h"

namespace sargan {

/// A word of the calculators' interface: its key is the English text.
constexpr Message<> calculatorWord(const char* english) {
    return {"Calculators", english, english};
}

/// Lists a calculator window's rows from top to bottom and makes its description from them, so that each
/// control is named once.
class WindowBuilder {
public:
    WindowBuilder(const char* action, const char* windowName, const char* title);

    /// A pane of its own; without one the window has a single pane.
    WindowBuilder& pane(const char* id, const char* label);
    /// Which control holds the id of the pane in view.
    WindowBuilder& panesIn(const char* control);
    WindowBuilder& section(const char* title = nullptr, bool startsColumn = false);

    struct Input {
        const char* name;
        const char* unit;  ///< null when it has none
    };
    WindowBuilder& input(const char* name, const char* label, const char* unit) {
        return inputs(label, {{name, unit}});
    }
    /// Several numbers in one row.
    WindowBuilder& inputs(const char* label, std::initializer_list<Input> numbers);
    /// A number that is given or converted, as the chooser says.
    WindowBuilder& either(const char* name, const char* label, const char* unit);
    WindowBuilder& popUp(const char* name, const char* label, std::span<const MenuItem> menu, int tag);
    WindowBuilder& radio(const char* name, const char* label, std::span<const MenuItem> menu, int tag);
    /// A button; the same action may stand on several panes.
    WindowBuilder& button(const char* action, const char* label = "Calculate");
    WindowBuilder& result(const char* name, const char* label = nullptr);

    CalculatorSpec of(const char* subject, const char* controllerClass, CalculatorMaker make);

private:
    LayoutSection& openSection();
    void choice(ControlSpec spec, const char* label, int tag);
    void row(const LayoutItem& item) { openSection().rows.append({{item}}); }

    CalculatorSpec _spec;
};

}  // namespace sargan
