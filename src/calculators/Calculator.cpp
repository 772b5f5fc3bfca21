#include "calculators/Calculator.h"

namespace sargan {

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
    const QString text = _form.text(ControlName{item.control});
    if (text.isEmpty()) return {};
    if (item.unit.key) return text + u' ' + _desk.strings.text(item.unit);
    return item.label.key ? _desk.strings.text(item.label) + QStringLiteral(": ") + text : text;
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
