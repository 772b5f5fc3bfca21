#pragma once

#include <functional>

#include "calculators/CalculatorSpec.h"
#include "platform/desk/Desk.h"
#include "platform/form/Form.h"

namespace sargan {

/// What the controllers of all calculators have in common. They read plain numbers from their form when an
/// action is pressed, compute in double precision, and write texts back; they keep nothing and check nothing
/// but what they say. An empty field is 0, and an infinity or NaN is shown as it is formatted.
class CalculatorController {
public:
    virtual ~CalculatorController() = default;
    CalculatorController(const CalculatorController&) = delete;
    CalculatorController& operator=(const CalculatorController&) = delete;

    /// Brings the calculator's window to the front; set by the window, if there is one.
    std::function<void()> onShowWindow;

protected:
    CalculatorController(const CalculatorSpec& spec, Form& form, Desk& desk)
        : _spec(spec), _form(form), _desk(desk) {}

    /// Makes a calculation one of the form's actions, if this window has it.
    void offer(const char* action, std::function<void()> run);

    Form& form() const { return _form; }
    const Strings& strings() const { return _desk.strings; }
    const Log& log() const { return _desk.log; }
    double number(ControlName name) const { return _form.number(name); }
    void show(ControlName name, const QString& text) { _form.setText(name, text); }

private:
    const CalculatorSpec& _spec;
    Form& _form;
    Desk& _desk;
};

/// Fills a fixed format, one that is the same in all languages.
QString filled(QStringView format, std::initializer_list<double> numbers);

/// Makes a controller of this class; for CalculatorSpec::make.
template <typename Controller>
std::unique_ptr<CalculatorController> makeController(const CalculatorSpec& spec, Form& form, Desk& desk) {
    return std::make_unique<Controller>(spec, form, desk);
}

}  // namespace sargan
