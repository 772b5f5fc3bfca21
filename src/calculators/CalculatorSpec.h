#pragma once

#include <memory>

#include "platform/form/WindowLayout.h"

namespace sargan {

class CalculatorController;
class Form;
struct Desk;
struct CalculatorSpec;

using CalculatorMaker = std::unique_ptr<CalculatorController> (*)(const CalculatorSpec&, Form&, Desk&);

/// One calculator window as data. Several windows have the same class of controller; which of its controls
/// and actions exist is up to the window.
struct CalculatorSpec {
    const char* action;           ///< the menu action that opens it: "displayProfMaxWindow"
    const char* controllerClass;  ///< "NitroxController"
    Message<> subject;            ///< what its menu is called
    WindowLayout layout;          ///< its name tells the windows of one class apart: "Nitrox Prof Max"
    QList<ControlSpec> controls;
    QList<const char*> actions;                      ///< without a colon, in the layout's order
    QList<const char*> results;                      ///< controls that actions write to, in order
    QList<std::pair<const char*, QString>> initial;  ///< what stands in controls at first; others are empty
    const char* paneControl =
        nullptr;  ///< the control that holds the id of the pane in view, if there are several
    CalculatorMaker make = nullptr;
};

/// The fifteen windows, in the order of the menu.
std::span<const CalculatorSpec> calculatorSpecs();

/// The window with this layout name or opening action; null when there is none.
const CalculatorSpec* findCalculator(QStringView name);

}  // namespace sargan
