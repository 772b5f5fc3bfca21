#pragma once

#include <map>
#include <memory>

#include "calculators/ui/CalculatorWindow.h"

class QMenu;

namespace sargan {

/// The calculators' windows: each is made when it is first asked for, and kept, with what is in it, as long
/// as the program runs.
class CalculatorWindows {
public:
    explicit CalculatorWindows(Desk& desk) : _desk(desk) {}

    /// Brings a calculator's window to the front.
    CalculatorWindow& display(const CalculatorSpec& spec);
    /// By opening action or window name; null when there is none.
    CalculatorWindow* display(QStringView name);

    /// A menu of all calculators, one submenu a subject, each entry named as its opening action.
    QMenu* makeMenu(QWidget* parent);

private:
    Desk& _desk;
    std::map<const CalculatorSpec*, std::unique_ptr<CalculatorWindow>> _windows;
};

}  // namespace sargan
