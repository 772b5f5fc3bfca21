#pragma once

#include <vector>

#include "platform/form/WindowLayout.h"

namespace sargan {

/// What the operations of a register are called: its actions, toolbar items and tests know them so.
struct RegisterOperations {
    const char* add;        ///< "addWreck"
    const char* update;     ///< "updateWreck"
    const char* erase;      ///< "deleteWreck"
    const char* previous;   ///< "prevWreck"
    const char* next;       ///< "nextWreck"
    const char* edit;       ///< "editWreckWindow"
    const char* goPage;     ///< "goWreckView_", followed by the page's number
    const char* synthesis;  ///< "repertoireEpavesWindow"
    const char* print;      ///< "printWrecksList"
};

/// A toolbar: its items from left to right. One that no register has stays out of the bar.
struct RegisterToolbar {
    const char* identifier;
    std::vector<const char*> items;
};

/// How many records there are, in words.
struct CountWords {
    Message<> one;
    Message<int> many;
};

/// What a control holds in the blank form. A control without such a line is blank in the way of its kind: no
/// text, no date, no picture, a menu's first item, a switch off, a slider at its beginning.
struct BlankValue {
    enum class What : char {
        Kept,   ///< as it was
        Text,   ///< `text`
        Words,  ///< the localised `words`
        Tag,    ///< `tag`
        Now,    ///< this moment
        Date,   ///< `text` in ISO 8601
    };
    const char* control;
    What what;
    const char* text = nullptr;
    Message<> words = {nullptr, nullptr};
    int tag = 0;
};

namespace blank {
constexpr BlankValue kept(const char* control) {
    return {control, BlankValue::What::Kept};
}
constexpr BlankValue text(const char* control, const char* text) {
    return {control, BlankValue::What::Text, text};
}
constexpr BlankValue words(const char* control, const Message<>& words) {
    return {control, BlankValue::What::Words, nullptr, words};
}
constexpr BlankValue tag(const char* control, int tag) {
    return {control, BlankValue::What::Tag, nullptr, {nullptr, nullptr}, tag};
}
constexpr BlankValue now(const char* control) {
    return {control, BlankValue::What::Now};
}
constexpr BlankValue date(const char* control, const char* iso) {
    return {control, BlankValue::What::Date, iso};
}
}  // namespace blank

/// What a register is, as far as it does not depend on its record class.
struct RegisterDesign {
    const char* nibName;  ///< "Epaves"
    RegisterOperations operations;
    RegisterToolbar listBar;
    RegisterToolbar editBar;
    /// Toolbar items that are enabled only while there are records …
    std::vector<const char*> needRecords;
    /// … or, when this names a pick list, while that list has entries, whatever the records are.
    const char* needPickList = nullptr;
    CountWords count;
    /// Whether a file that is opened under another type name is refused.
    bool checksType = true;
    const WindowLayout& (*layout)();
    std::vector<BlankValue> blank;
    /// The control with the keyboard in a blank form.
    const char* blankFocus = nullptr;
    bool blankClearsSelection = true;
    /// The control that `resetDateToNow` sets; null when the form has no such button.
    const char* nowControl = nullptr;
    /// What rows that are dragged in the table are called on the pasteboard; null when they cannot be
    /// dragged.
    const char* draggedRows = nullptr;
};

}  // namespace sargan
