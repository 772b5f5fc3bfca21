#pragma once

#include "calculators/CalculatorController.h"

namespace sargan {

/// A calculator without a display: its form, as its window shows it at first, and the controller that works
/// on it.
class Calculator {
public:
    Calculator(const CalculatorSpec& spec, Desk& desk);

    /// Said of a result that is shown in red.
    static constexpr Message<> outsideLimits{"Calculators", "⚠ outside the limits", "⚠ outside the limits"};

    const CalculatorSpec& spec() const { return _spec; }
    Form& form() { return _form; }
    const Form& form() const { return _form; }

    CalculatorController& controller() { return *_controller; }

    /// The results of the pane in view that have a text, each on a line with its label or unit: to be copied.
    /// What is red in the window is marked in words, as it is there.
    QString resultText() const;

private:
    bool isInView(const LayoutPane& pane) const;
    QString resultLine(const LayoutItem& item) const;

    const CalculatorSpec& _spec;
    Desk& _desk;
    Form _form;
    std::unique_ptr<CalculatorController> _controller;
};

}  // namespace sargan
