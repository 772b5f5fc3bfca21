#include "stats/ui/PreviousDivesWindow.h"

#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QShowEvent>

#include "platform/ui/FormView.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

const QString validate = QStringLiteral("validateStatisticsValues");

}  // namespace

PreviousDivesWindow::PreviousDivesWindow(Statistics& statistics)
    : AuxiliaryWindow(statistics.desk(), u"EditStatistics"_s), _statistics(statistics) {
    setObjectName(u"editStatisticsWindow"_s);
    connect(&statistics, &Statistics::editorShown, this, &AuxiliaryWindow::bringToFront);
    connect(&statistics, &Statistics::editorClosed, this, &QWidget::close);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &PreviousDivesWindow::pressReturn);
    build();
    if (!restorePlace()) resize(QSize(840, 640).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

void PreviousDivesWindow::build() {
    setWindowTitle(desk().strings.text(previousDivesLayout().title));
    _view = new FormView(_statistics.editor(), previousDivesLayout(), desk());
    setCentralWidget(_view);
    if (auto* store = _view->findChild<QPushButton*>(validate)) store->setDefault(true);
}

void PreviousDivesWindow::showEvent(QShowEvent* event) {
    AuxiliaryWindow::showEvent(event);
    if (!event->spontaneous()) _view->takeFocus();
}

void PreviousDivesWindow::pressReturn() {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else
        _statistics.editor().press(validate);
}

}  // namespace sargan
