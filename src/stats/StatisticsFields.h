#pragma once

#include <span>

#include "platform/form/WindowLayout.h"
#include "stats/StatisticsTotals.h"

namespace sargan {

/// A count on the panel: its field, the field of its share, its field in the editor of previous dives, what
/// it is called on screen, and what the printed page calls it (no key: not on the page).
struct CounterFields {
    StatisticsCounter counter;
    const char* field;
    const char* shareField;
    const char* sumField;
    Message<> words;
    Message<> pageLabel = {nullptr, nullptr};
};

/// In the order in which the panel is filled.
std::span<const CounterFields> counterFields();

/// A maximum, total or mean on the panel and on the page.
struct FigureField {
    const char* field;
    Message<> words;
    Message<> pageLabel;
};
/// In the order of the page.
std::span<const FigureField> figureFields();

/// One input of the editor of previous dives.
struct PreviousField {
    const char* key;
    const char* field;
};
/// In the order in which they are stored.
std::span<const PreviousField> previousFields();

/// The controls of the panel and of the editor.
std::span<const ControlSpec> statisticsControls();
std::span<const ControlSpec> previousDivesControls();

/// The windows.
const WindowLayout& statisticsLayout();
const WindowLayout& previousDivesLayout();

namespace statcontrol {
inline constexpr ControlName state{"statStateField"};
inline constexpr ControlName ignorePrevious{"previousDivesNoSwitch"};
}  // namespace statcontrol

}  // namespace sargan
