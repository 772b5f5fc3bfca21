#pragma once

#include <optional>

#include "logbook/Carnet.h"
#include "platform/form/WindowLayout.h"
#include "platform/print/StyledText.h"

namespace sargan {

/// The report of one dive: every item of its record under headed sections, ended by a line of bullets.
/// Numbers stand as they are recorded; `usUnits` chooses only the units written behind them.
StyledText diveReport(const Plongee& dive, const Strings& strings, bool usUnits);

/// A logbook's synthesis: the chooser of which dives it covers, and the report.
class Synthesis {
public:
    explicit Synthesis(Carnet& carnet);

    Carnet& carnet() const { return _carnet; }
    /// The chooser: `selectedDivesMatrix`, 0 the selected dive, 1 all dives.
    Form& chooser() { return _chooser; }

    void divesForSynthesisWindow();
    /// Closes the chooser and shows the report.
    void syntheseWindow();

    bool wantsAll() const;
    /// Whether there is anything to report on: a selected dive, when only that one is wanted.
    bool canFill() const;
    /// The report on the wanted dives in list order; none when the selected dive is wanted and none is.
    std::optional<StyledText> fillSynthesisWindow() const;

    /// What the windows do.
    std::function<void()> onShowChooser;
    std::function<void()> onCloseChooser;
    std::function<void(const StyledText&)> onShowReport;

private:
    Carnet& _carnet;
    Form _chooser;
};

/// The chooser's window.
const WindowLayout& synthesisChooserLayout();

namespace synthesiscontrol {
inline constexpr ControlName selectedDives{"selectedDivesMatrix"};
}  // namespace synthesiscontrol

}  // namespace sargan
