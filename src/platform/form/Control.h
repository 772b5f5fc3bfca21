#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>
#include <span>

#include "platform/archive/Moment.h"
#include "platform/text/Message.h"

namespace sargan {

enum class ControlKind : char {
    Text,     ///< one line of text
    Number,   ///< one line that holds a number as typed: "12,5", "-", empty
    Area,     ///< several lines of text
    Combo,    ///< text with choices: a pick list of the settings, or a fixed list
    Date,     ///< a day
    Time,     ///< a time of day
    PopUp,    ///< one of a menu's items, by tag
    Switch,   ///< on or off
    Slider,   ///< a whole number between two bounds
    Caption,  ///< a text that the program shows and nobody types
    Image,    ///< a picture's bytes
    Gauge,    ///< a bar that the program fills, per cent
    Color,    ///< a colour well
};

/// One item of a pop-up menu. Its tag is what records store.
struct MenuItem {
    int tag;
    Message<> words;
};

/// What a control is; the same for every instance of its form.
struct ControlSpec {
    const char* name;
    ControlKind kind;
    std::span<const MenuItem> menu = {};             ///< pop-ups
    const char* pickList = nullptr;                  ///< combo boxes: settings key of their list
    std::span<const char* const> choices = {};       ///< combo boxes with a fixed list
    int minimum = 0;                                 ///< sliders
    int maximum = 0;
    bool spread = false;                             ///< pop-ups: all items in view, as radio buttons
    const char* noDate = "";                         ///< dates: the text in place of none
    bool numbered = false;                           ///< gauges: the bar shows its number too
};

/// A control's name where the code uses it; texts from outside go through Form::find.
struct ControlName {
    const char* text;
};

/// The tag of a pop-up that has nothing selected.
inline constexpr int noTag = INT_MIN;

/// A piece of a text in one colour; invalid for the default.
struct TextRun {
    QString text;
    QColor color;

    friend bool operator==(const TextRun&, const TextRun&) = default;
};

/// What a control holds and how it is shown. Which of the values counts depends on its kind.
struct ControlState {
    QString text;          ///< Text, Number, Area, Combo, Caption; a null one stands for an absent value
    QList<TextRun> runs;   ///< Caption: the text in pieces of several colours; empty for one colour
    int tag = 0;           ///< PopUp: tag; Switch: 0 or 1; Slider: value
    Moment date;           ///< Date, Time
    QByteArray image;      ///< Image: bytes as they were given; empty but not null for one that nobody can read
    double level = 0;      ///< Gauge: per cent, also beyond the ends
    QColor color;          ///< Color: the well; others: text colour, invalid for the default
    bool enabled = true;
    bool hidden = false;

    friend bool operator==(const ControlState&, const ControlState&) = default;
};

}  // namespace sargan
