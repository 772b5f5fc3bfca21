#include "calculators/WindowBuilder.h"

namespace sargan {

namespace {

constexpr int numberWidth = 12;

Message<> wordOrNone(const char* english) {
    return english ? calculatorWord(english) : Message<>{nullptr, nullptr};
}

}  // namespace

WindowBuilder::WindowBuilder(const char* action, const char* windowName, const char* title) {
    _spec.action = action;
    _spec.layout = {windowName, calculatorWord(title), {}};
}

WindowBuilder& WindowBuilder::pane(const char* id, const char* label) {
    _spec.layout.panes.append({id, calculatorWord(label), nullptr, {}});
    return *this;
}

WindowBuilder& WindowBuilder::panesIn(const char* control) {
    _spec.paneControl = control;
    _spec.controls.append({.name = control, .kind = ControlKind::Text});
    _spec.initial.append({control, QString::fromLatin1(_spec.layout.panes.first().id)});
    return *this;
}

WindowBuilder& WindowBuilder::section(const char* title, bool startsColumn) {
    if (_spec.layout.panes.isEmpty())
        _spec.layout.panes.append({_spec.layout.name, _spec.layout.title, nullptr, {}});
    _spec.layout.panes.last().sections.append({wordOrNone(title), {}, startsColumn});
    return *this;
}

LayoutSection& WindowBuilder::openSection() {
    if (_spec.layout.panes.isEmpty() || _spec.layout.panes.last().sections.isEmpty()) section();
    return _spec.layout.panes.last().sections.last();
}

WindowBuilder& WindowBuilder::inputs(const char* label, std::initializer_list<Input> numbers) {
    LayoutRow items;
    for (const Input& number : numbers) {
        _spec.controls.append({.name = number.name, .kind = ControlKind::Number});
        items.items.append({.control = number.name,
                            .label = wordOrNone(items.items.isEmpty() ? label : nullptr),
                            .unit = wordOrNone(number.unit),
                            .width = numbers.size() > 1 ? numberWidth / 2 : numberWidth});
    }
    openSection().rows.append(items);
    return *this;
}

WindowBuilder& WindowBuilder::either(const char* name, const char* label, const char* unit) {
    _spec.results.append(name);
    return input(name, label, unit);
}

void WindowBuilder::choice(ControlSpec spec, const char* label, int tag) {
    _spec.controls.append(spec);
    _spec.initial.append({spec.name, QString::number(tag)});
    row({.control = spec.name, .label = wordOrNone(label)});
}

WindowBuilder& WindowBuilder::popUp(const char* name, const char* label, std::span<const MenuItem> menu,
                                    int tag) {
    choice({.name = name, .kind = ControlKind::PopUp, .menu = menu}, label, tag);
    return *this;
}

WindowBuilder& WindowBuilder::radio(const char* name, const char* label, std::span<const MenuItem> menu,
                                    int tag) {
    choice({.name = name, .kind = ControlKind::PopUp, .menu = menu, .spread = true}, label, tag);
    return *this;
}

WindowBuilder& WindowBuilder::button(const char* action, const char* label) {
    const auto isSame = [action](const char* other) { return qstrcmp(action, other) == 0; };
    if (std::none_of(_spec.actions.begin(), _spec.actions.end(), isSame)) _spec.actions.append(action);
    row({.action = action, .label = calculatorWord(label)});
    return *this;
}

WindowBuilder& WindowBuilder::result(const char* name, const char* label) {
    _spec.controls.append({.name = name, .kind = ControlKind::Caption});
    _spec.results.append(name);
    row({.control = name, .label = wordOrNone(label)});
    return *this;
}

CalculatorSpec WindowBuilder::of(const char* subject, const char* controllerClass, CalculatorMaker make) {
    _spec.subject = calculatorWord(subject);
    _spec.controllerClass = controllerClass;
    _spec.make = make;
    return std::move(_spec);
}

}  // namespace sargan
