#pragma once

#include <QStringView>
#include <span>

#include "platform/text/Message.h"

namespace sargan {

/// One list of an editor.
struct EditedList {
    const char* key;  ///< in the settings
    const char* addAction;
    const char* deleteAction;
    const char* entryField;
    const char* countField;
    Message<> title;
};

/// One of the sixteen editors of pick lists.
struct PickListEditorSpec {
    const char* controller;
    const char* menuAction;
    const char* layout;
    const char* frameName;  ///< under which the window's place is remembered
    bool reloads;           ///< shows the stored list; the others show what is in memory
    std::span<const EditedList> lists;
    Message<> title;
};

/// In the order of the menu.
std::span<const PickListEditorSpec> pickListEditors();
/// The editor of the list under this settings key; null when none edits it.
const PickListEditorSpec* editorOfList(QStringView key);
/// By menu action or layout name; null when there is none.
const PickListEditorSpec* findPickListEditor(QStringView name);

}  // namespace sargan
