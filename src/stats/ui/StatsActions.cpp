#include "stats/ui/StatsActions.h"

#include <QMenu>
#include <QToolBar>
#include <QWidgetAction>

#include "logbook/ui/LogbookWindow.h"
#include "platform/print/TablePages.h"
#include "platform/ui/Icons.h"
#include "stats/ui/GraphesWindow.h"
#include "stats/ui/PreviousDivesWindow.h"
#include "stats/ui/ReportWindow.h"
#include "stats/ui/StatisticsWindow.h"
#include "stats/ui/SynthesisChooser.h"

namespace sargan {

using namespace Qt::StringLiterals;

StatsActions::StatsActions(LogbookWindow& window)
    : QObject(&window), _window(window), _desk(window.carnet().desk()), _synthesis(window.carnet()) {
    setObjectName(u"stats"_s);
    const Strings& words = _desk.strings;
    _synthese = make("synthese", "texte", words.text({"Main", "Synthesis card"}),
                     words.text({"Carnet", "Tip synthesis card"}), &StatsActions::divesForSynthesisWindow);
    _statisticsAction = make("statistics", "statistics", words.text({"Carnet", "Statistics"}),
                             words.text({"Carnet", "Tip statistics"}), &StatsActions::statisticsWindow);
    _pageAction = make("statsSynthesis", "texte", words.ui("Statistics page"),
                       words.ui("The statistics as a page to print"), &StatsActions::statsSynthesisWindow);
    _graphesAction = make("graphes", "statistics", words.ui("Statistics graphs"),
                          words.ui("Depths and gases as bars"), &StatsActions::graphesWindow);
    _printing = new PrintActions("printLogbook", words.ui("Print the list…"), _desk, &window, [this] {
        return std::make_unique<TablePages>(*_window.carnet().table(), _desk.strings,
                                            _window.carnet().displayName());
    });
    _synthesis.onShowChooser = [this] { _chooser->open(); };
    _synthesis.onCloseChooser = [this] { _chooser->close(); };
    _synthesis.onShowReport = [this](const StyledText&) { showReport(); };
    addToToolbar();
    connect(&window.carnet(), &Document::contentChanged, this, &StatsActions::refreshReports);
    connect(&window.carnet(), &Document::selectionChanged, this, [this] {
        if (_report && !_synthesis.wantsAll()) _report->refresh();
    });
    // The units of the reports are a setting.
    for (const char* name : {"updateTableView", "updateEditDive"})
        _observations.push_back(
            _desk.notifications.observe(QLatin1String(name), [this](const void*) { refreshReports(); }));
    validate();
}

StatsActions::~StatsActions() = default;

QAction* StatsActions::make(const char* name, const char* icon, const QString& text, const QString& tip,
                            void (StatsActions::*run)()) {
    auto* action = new QAction(iconNamed(icon), text, this);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void StatsActions::addToToolbar() {
    auto* bar = _window.findChild<QToolBar*>(u"tableViewToolbar"_s);
    if (!bar) return;
    QAction* search = nullptr;
    for (QAction* item : bar->actions())
        if (!search && qobject_cast<QWidgetAction*>(item)) search = item;
    bar->insertActions(search, {_synthese, _statisticsAction});
}

void StatsActions::addTo(QMenu* kindMenu) {
    kindMenu->addSeparator();
    kindMenu->addActions({_synthese, _statisticsAction, _pageAction, _graphesAction});
}

void StatsActions::addPrintingTo(QMenu* file, QAction* before) {
    file->insertActions(before, _printing->all());
    file->insertSeparator(before);
}

void StatsActions::divesForSynthesisWindow() {
    _window.storePending();
    if (!_chooser) _chooser = new SynthesisChooser(_synthesis, &_window);
    _synthesis.divesForSynthesisWindow();
}

void StatsActions::showReport() {
    if (!_report)
        _report = std::make_unique<ReportWindow>(
            _desk, u"Synthese"_s, "syntheseField", "printSynthesis",
            [this]() -> std::optional<ReportWindow::Report> {
                std::optional<StyledText> text = _synthesis.fillSynthesisWindow();
                if (!text) return std::nullopt;
                return ReportWindow::Report{*std::move(text), _desk.strings.text({"Main", "Synthesis card"}) +
                                                                  u" – "_s + _window.carnet().displayName()};
            });
    _report->open();
}

Statistics& StatsActions::statistics() {
    if (!_statistics) {
        _statistics = std::make_unique<Statistics>(_window.carnet());
        _previous = std::make_unique<PreviousDivesWindow>(*_statistics);
        connect(_statistics.get(), &Statistics::sharesChanged, this, [this] {
            if (_page) _page->refresh();
        });
    }
    return *_statistics;
}

void StatsActions::statisticsWindow() {
    _window.storePending();
    if (!_panel) {
        _panel = std::make_unique<StatisticsWindow>(statistics());
        _panel->setTools({_pageAction, _graphesAction});
    }
    _panel->open();
}

void StatsActions::statsSynthesisWindow() {
    _window.storePending();
    if (!_page)
        _page = std::make_unique<ReportWindow>(
            _desk, u"SynthStat"_s, "statisticsField", "printStatistics", [this] {
                return std::make_optional(ReportWindow::Report{
                    statistics().fillStatisticsField(), _desk.strings.text({"Carnet", "Statistics"}) +
                                                            u" – "_s + _window.carnet().displayName()});
            });
    _page->open();
}

void StatsActions::graphesWindow() {
    _window.storePending();
    if (!_graphes) _graphes = std::make_unique<GraphesWindow>(statistics());
    _graphes->open();
}

void StatsActions::refreshReports() {
    validate();
    if (_report) _report->refresh();
}

void StatsActions::validate() {
    for (QAction* item : {_synthese, _statisticsAction})
        item->setEnabled(validateToolbarItem(_window.carnet(), item->objectName()));
}

}  // namespace sargan
