#pragma once

#include "platform/desk/Desk.h"
#include "platform/print/StyledText.h"
#include "platform/record/Record.h"

namespace sargan {

/// Writes a synthesis card: title, rules, headings, and lines of a label and its value. Labels are keys of
/// the register's table.
class CardWriter {
public:
    CardWriter(const Desk& desk, QString path) : _desk(desk), _path(std::move(path)) {}

    const Desk& desk() const { return _desk; }
    const Strings& strings() const { return _desk.strings; }

    void title(const Message<>& words);
    /// A line of dashes with the line ends around it: "\r--------------------\r".
    void rule(const char* dashes);
    void heading(const Message<>& words);
    /// "Label : value", on a line of its own.
    void line(const Message<>& label, const QString& value);
    /// The same with a second label and value behind it.
    void line(const Message<>& label, const QString& value, const Message<>& label2, const QString& value2);
    /// A line that is one text: an operation that was done.
    void line(const Message<>& words);
    void line(const QString& text);
    /// Where the document's file is, and the date of today.
    void closing(const char* beforePath = "\r");

    StyledText take() { return std::move(_text); }

private:
    const Desk& _desk;
    QString _path;
    StyledText _text;
};

/// "dd/MM/yyyy" and "HH:mm"; empty for an absent date.
QString cardDate(const Date& date);
QString cardTime(const Date& time);

}  // namespace sargan
