#pragma once

#include "settings/ui/AuxiliaryWindow.h"
#include "stats/Statistics.h"

namespace sargan {

class FormView;

/// The editor of the dives made before the logbook. Return stores them, Escape gives up.
class PreviousDivesWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    explicit PreviousDivesWindow(Statistics& statistics);

    FormView& view() const { return *_view; }

protected:
    void build() override;
    void showEvent(QShowEvent* event) override;

private:
    void pressReturn();

    Statistics& _statistics;
    FormView* _view = nullptr;
};

}  // namespace sargan
