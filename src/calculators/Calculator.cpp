#include "calculators/Calculator.h"

#include "platform/form/SystemColors.h"

namespace sargan {

namespace {

constexpr Message<QString, QString> labelled{"Calculators", "%@: %@", "%@: %@"};

}  // namespace

Calculator::Calculator(const CalculatorSpec& spec, Desk& desk)
    : _spec(spec), _desk(desk), _form(spec.controls), _controller(spec.make(spec, _form, desk)) {
    for (const auto& [control, value] : spec.initial) _form.fill(_form[ControlName{control}], value);
}

bool Calculator::isInView(const LayoutPane& pane) const {
    return !_spec.paneControl || _form.text(ControlName{_spec.paneControl}) == QLatin1String(pane.id);
}

QString Calculator::resultLine(const LayoutItem& item) const {
    const auto isSame = [&item](const char* result) {
        return item.control && qstrcmp(result, item.control) == 0;
    };
    if (std::none_of(_spec.results.begin(), _spec.results.end(), isSame)) return {};
    const ControlState& state = _form.state(_form[ControlName{item.control}]);
    QString line = state.text;
    if (line.isEmpty()) return {};
    if (item.unit.key)
        line += u' ' + _desk.strings.text(item.unit);
    else if (item.label.key)
        line = _desk.strings.text(labelled, _desk.strings.text(item.label), line);
    if (state.color == systemcolor::red) line += u' ' + _desk.strings.text(outsideLimits);
    return line;
}

QString Calculator::resultText() const {
    QStringList lines;
    for (const LayoutPane& pane : _spec.layout.panes) {
        if (!isInView(pane)) continue;
        for (const LayoutSection& section : pane.sections)
            for (const LayoutRow& row : section.rows)
                for (const LayoutItem& item : row.items) lines << resultLine(item);
    }
    lines.removeAll(QString());
    return lines.join(u'\n');
}

}  // namespace sargan
