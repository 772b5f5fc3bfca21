#pragma once

#include <QTest>
#include <cmath>

#include "calculators/Calculator.h"

/// A calculator on a desk of its own. Texts are shown as keys with their arguments unless a language is
/// named, so that tests read the numbers themselves and not their rounding.
class Workbench {
public:
    explicit Workbench(const char* window,
                       sargan::Strings::Language language = sargan::Strings::Language::Keys)
        : _strings(language), _calculator(specOf(window), _desk) {}

    sargan::Form& form() { return _calculator.form(); }
    sargan::Calculator& calculator() { return _calculator; }

    /// "fracO2Field=32 ppO2PopUp=2", then the window's first action or the one named.
    Workbench& press(const QString& values, const QString& action = {}) {
        for (const QString& pair : values.split(u' ', Qt::SkipEmptyParts))
            form().fill(form().find(pair.section(u'=', 0, 0)), pair.section(u'=', 1));
        form().press(action.isEmpty() ? QString::fromLatin1(_calculator.spec().actions.first()) : action);
        return *this;
    }
    QString text(const char* control) const { return _calculator.form().text(sargan::ControlName{control}); }
    QColor color(const char* control) { return form().state(form()[sargan::ControlName{control}]).color; }
    const QStringList& log() const { return _log; }

private:
    static const sargan::CalculatorSpec& specOf(const char* window) {
        const sargan::CalculatorSpec* spec = sargan::findCalculator(QString::fromLatin1(window));
        if (!spec) throw std::runtime_error(std::string("no calculator ") + window);
        return *spec;
    }

    sargan::ScriptedPrompt _prompt;
    sargan::UserDefaults _defaults;
    sargan::Strings _strings;
    sargan::NotificationCenter _notifications;
    sargan::PickLists _pickLists{_defaults};
    QStringList _log;
    sargan::Desk _desk{_prompt,    _defaults,
                       _strings,   _notifications,
                       _pickLists, sargan::Clock(),
                       sargan::Log([this](const QString& line) { _log << line; })};
    sargan::Calculator _calculator;
};

/// "Best Mix|35" taken apart.
struct Spoken {
    QString key;
    QList<double> numbers;

    explicit Spoken(const QString& text) : key(text.section(u'|', 0, 0)) {
        for (const QString& number : text.split(u'|').mid(1)) {
            bool fine = false;
            numbers << number.toDouble(&fine);
            if (!fine) throw std::runtime_error("no number: " + number.toStdString());
        }
    }
};

/// Equal but for the noise of double precision; two NaN are equal.
inline bool isClose(double value, long double expected, long double tolerance = 1e-11L) {
    if (std::isnan(value) || std::isnan(expected)) return std::isnan(value) && std::isnan(expected);
    if (std::isinf(value) || std::isinf(expected)) return value == double(expected);
    return std::abs(value - expected) <= tolerance * (1 + std::abs(expected));
}

inline bool areClose(const QList<double>& values, const QList<double>& expected) {
    return std::equal(values.begin(), values.end(), expected.begin(), expected.end(),
                      [](double value, double wanted) { return isClose(value, wanted); });
}
