#pragma once

#include <QHash>
#include <QObject>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/form/Control.h"

namespace sargan {

class Strings;

/// A value given to a control from outside that it cannot take ("pmBmPopUp=seven").
class ControlValueError : public std::runtime_error {
public:
    ControlValueError(const QString& control, const QString& problem)
        : std::runtime_error((control + QStringLiteral(": ") + problem).toStdString()) {}
    QString sentence() const { return QString::fromUtf8(what()); }
};

/// A set of named controls with values, without a display. A controller reads and writes it, a view binds
/// widgets to it, the command line and the importers fill it, and all see the same thing.
class Form : public QObject {
    Q_OBJECT

public:
    explicit Form(std::span<const ControlSpec> specs, QObject* parent = nullptr);

    int count() const { return int(_specs.size()); }
    const ControlSpec& spec(int control) const { return _specs[std::size_t(control)]; }
    const ControlState& state(int control) const { return _states[std::size_t(control)]; }

    /// The control with this name or alias. Throws UnknownControlError.
    int find(QStringView name) const;
    int operator[](ControlName name) const;
    /// Another name under which `find` knows a control.
    void addAlias(const QString& alias, int control) { _index.insert(alias, control); }

    // --- Values, as the program reads and writes them; each change is announced once ---

    QString text(int control) const { return state(control).text; }
    int tag(int control) const { return state(control).tag; }
    bool isOn(int control) const { return state(control).tag != 0; }
    Moment date(int control) const { return state(control).date; }
    /// The leading number of a field's text, comma or point; the tag of pop-ups, switches and sliders.
    double number(int control) const;
    /// The same as a whole number, truncated towards zero.
    int integer(int control) const;

    void setText(int control, const QString& text);
    /// A text in pieces of several colours; a caption shows them, any control holds them as one text.
    void setRuns(int control, const QList<TextRun>& runs);
    void setInteger(int control, int value);  ///< a field's text, or the tag
    void setTag(int control, int tag);
    void setDate(int control, const Moment& date);
    void setImage(int control, const QByteArray& bytes);
    void setLevel(int control, double percent);
    void setColor(int control, const QColor& color);
    void setEnabled(int control, bool enabled);
    void setHidden(int control, bool hidden);

    QString text(ControlName name) const { return text((*this)[name]); }
    int tag(ControlName name) const { return tag((*this)[name]); }
    int integer(ControlName name) const { return integer((*this)[name]); }
    double number(ControlName name) const { return number((*this)[name]); }
    void setText(ControlName name, const QString& text) { setText((*this)[name], text); }
    void setTag(ControlName name, int tag) { setTag((*this)[name], tag); }
    void setInteger(ControlName name, int value) { setInteger((*this)[name], value); }

    // --- What the person does ---

    /// Gives a control a value written as text: fields as it stands, dates and times as ISO 8601, pop-ups,
    /// switches and sliders as a whole number, pictures as a file's path ("scan.pdf#3": the third page of a
    /// PDF), colours as rgba(…) or a name. Throws ControlValueError. Then editing of the control has ended.
    void fill(int control, const QString& value);
    /// Leaving a control, as with Tab.
    void endEditing(int control);
    /// Presses a button. Throws UnknownControlError for one that the form does not have.
    void press(const QString& action);
    void addAction(const QString& name, const std::function<void()>& action) { _actions.insert(name, action); }
    QStringList actionNames() const;

    /// The words beside a control's value: the selected item of a pop-up, a date in the usual pattern.
    QString shownText(int control, const Strings& strings) const;

    /// Called when editing of a control has ended.
    std::function<void(int control)> onEndEditing;
    /// The control that should have the keyboard focus, as the program last asked; -1 none.
    int focus() const { return _focus; }
    void setFocus(int control);

Q_SIGNALS:
    void changed(int control);
    void focusWanted(int control);

private:
    template <typename T>
    void assign(int control, T ControlState::*member, const T& value);

    std::vector<ControlSpec> _specs;
    std::vector<ControlState> _states;
    QHash<QString, int> _index;                        ///< names and aliases
    std::unordered_map<std::string_view, int> _names;  ///< names alone, found without making a QString
    QHash<QString, std::function<void()>> _actions;
    int _focus = -1;
};

/// A control or button name that the form does not have.
class UnknownControlError : public std::runtime_error {
public:
    explicit UnknownControlError(const QString& name)
        : std::runtime_error(QStringLiteral("there is no control named \"%1\"").arg(name).toStdString()) {}
    QString sentence() const { return QString::fromUtf8(what()); }
};

}  // namespace sargan
