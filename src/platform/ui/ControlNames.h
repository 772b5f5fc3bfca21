#pragma once

#include "platform/form/WindowLayout.h"
#include "platform/text/Strings.h"

class QWidget;

namespace sargan {

/// What a person who hears the window instead of seeing it is told about a control: its label, and where that
/// says too little by itself the headings around it. Empty only where the layout has no word at all.
QString spokenName(const LayoutPane& pane, const LayoutSection& section, qsizetype row, qsizetype item,
                   const Strings& strings);

/// Makes this the name that is read aloud for a control.
void speakAs(QWidget* control, const QString& name);

}  // namespace sargan
