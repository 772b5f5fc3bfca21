#include "stats/ui/PreviousDivesWindow.h"

#include <QScreen>

#include "platform/ui/FormView.h"

namespace sargan {

using namespace Qt::StringLiterals;

PreviousDivesWindow::PreviousDivesWindow(Statistics& statistics)
    : AuxiliaryWindow(statistics.desk(), u"EditStatistics"_s), _statistics(statistics) {
    setObjectName(u"editStatisticsWindow"_s);
    connect(&statistics, &Statistics::editorShown, this, &AuxiliaryWindow::bringToFront);
    connect(&statistics, &Statistics::editorClosed, this, &QWidget::close);
    build();
    if (!restorePlace()) resize(QSize(840, 640).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

void PreviousDivesWindow::build() {
    setWindowTitle(desk().strings.text(previousDivesLayout().title));
    _view = new FormView(_statistics.editor(), previousDivesLayout(), desk());
    setCentralWidget(_view);
}

}  // namespace sargan
