#include "stats/ui/StatisticsWindow.h"

#include <QScreen>
#include <QShowEvent>
#include <QToolBar>

#include "platform/ui/FormView.h"

namespace sargan {

using namespace Qt::StringLiterals;

StatisticsWindow::StatisticsWindow(Statistics& statistics)
    : AuxiliaryWindow(statistics.desk(), u"Statistics"_s), _statistics(statistics) {
    setObjectName(u"statisticsWindow"_s);
    _bar = addToolBar(desk().strings.ui("Toolbar"));
    _bar->setMovable(false);
    _bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(&statistics.carnet(), &Document::fileChanged, this, &StatisticsWindow::build);
    build();
    if (!restorePlace()) resize(QSize(860, 520).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

void StatisticsWindow::setTools(const QList<QAction*>& tools) {
    _bar->clear();
    _bar->addActions(tools);
}

void StatisticsWindow::build() {
    setWindowTitle(desk().strings.text(statisticsLayout().title) + u" – "_s +
                   _statistics.carnet().displayName());
    _statistics.updateStatistics();
    _view = new FormView(_statistics.panel(), statisticsLayout(), desk());
    setCentralWidget(_view);
}

void StatisticsWindow::showEvent(QShowEvent* event) {
    AuxiliaryWindow::showEvent(event);
    if (!event->spontaneous()) _view->takeFocus();
}

}  // namespace sargan
