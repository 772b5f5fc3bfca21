#pragma once

#include "settings/ui/AuxiliaryWindow.h"
#include "stats/Statistics.h"

class QToolBar;

namespace sargan {

class FormView;

/// The statistics panel. What its toolbar opens are other windows; whoever owns them gives it the actions.
class StatisticsWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    explicit StatisticsWindow(Statistics& statistics);

    void open() { bringToFront(); }
    void setTools(const QList<QAction*>& tools);
    FormView& view() const { return *_view; }

protected:
    void build() override;
    void showEvent(QShowEvent* event) override;

private:
    Statistics& _statistics;
    QToolBar* _bar;
    FormView* _view = nullptr;
};

}  // namespace sargan
