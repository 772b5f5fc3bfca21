#pragma once

#include "platform/form/WindowLayout.h"
#include "registers/RegisterWords.h"

/// The pieces of form pages.
namespace sargan::registerlayout {

using registerwords::none;
using registerwords::ui;

inline LayoutItem field(const char* control, const Message<>& label = none) {
    return {.control = control, .label = label};
}
/// A control as wide as this many characters.
inline LayoutItem sized(const char* control, const Message<>& label, int width,
                        const Message<>& unit = none) {
    return {.control = control, .label = label, .unit = unit, .width = width};
}
inline LayoutItem heading(const Message<>& words) {
    return {.label = words};
}
inline LayoutItem button(const char* action, const Message<>& words) {
    return {.action = action, .label = words};
}
/// A control with a button behind it, shown and hidden with it.
inline LayoutItem withButton(const char* control, const Message<>& label, const char* action,
                             const Message<>& words) {
    return {.control = control, .action = action, .label = label, .button = words};
}
inline LayoutRow row(std::initializer_list<LayoutItem> items) {
    return {QList<LayoutItem>(items)};
}

}  // namespace sargan::registerlayout
