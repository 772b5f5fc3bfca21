#include "stats/ui/StatsWindows.h"

#include "stats/ui/GraphesWindow.h"
#include "stats/ui/PreviousDivesWindow.h"
#include "stats/ui/ReportWindow.h"
#include "stats/ui/StatisticsWindow.h"

namespace sargan {

using namespace Qt::StringLiterals;

StatsWindows::StatsWindows(Carnet& carnet) : _carnet(carnet), _desk(carnet.desk()), _synthesis(carnet) {
    _synthesis.onShowChooser = [this] { showChooser(); };
    _synthesis.onCloseChooser = [this] {
        if (_chooser) _chooser->close();
    };
    _synthesis.onShowReport = [this](const StyledText&) { showReport(); };
    connect(&carnet, &Document::contentChanged, this, &StatsWindows::refreshReports);
    connect(&carnet, &Document::selectionChanged, this, [this] {
        if (_report && !_synthesis.wantsAll()) _report->refresh();
    });
    // The units of the reports are a setting.
    for (const char* name : {"updateTableView", "updateEditDive"})
        _observations.push_back(
            _desk.notifications.observe(QLatin1String(name), [this](const void*) { refreshReports(); }));
}

StatsWindows::~StatsWindows() = default;

void StatsWindows::attachTo(QWidget& window, const QList<QAction*>& tools) {
    _window = &window;
    _tools = tools;
    if (_panel) _panel->setTools(_tools);
    // The texts of the panel are the page's as well, and may be wanted in another language now.
    if (_statistics) _statistics->updateStatistics();
    // The window itself is shown first.
    if (std::exchange(_isChoosing, false))
        QMetaObject::invokeMethod(this, &StatsWindows::showChooser, Qt::QueuedConnection);
}

void StatsWindows::detach() {
    _isChoosing = _chooser && _chooser->isVisible();
    delete _chooser;
    _window = nullptr;
    _tools.clear();
}

void StatsWindows::openChooser() {
    _synthesis.divesForSynthesisWindow();
}

void StatsWindows::showChooser() {
    if (!_chooser) _chooser = new SynthesisChooser(_synthesis, _window);
    _chooser->open();
}

QString StatsWindows::titled(const Message<>& words) const {
    return _desk.strings.text(words) + u" – "_s + _carnet.displayName();
}

void StatsWindows::showReport() {
    if (!_report)
        _report = std::make_unique<ReportWindow>(
            _desk, u"Synthese"_s, "syntheseField", "printSynthesis",
            [this]() -> std::optional<ReportWindow::Report> {
                std::optional<StyledText> text = _synthesis.fillSynthesisWindow();
                if (!text) return std::nullopt;
                return ReportWindow::Report{*std::move(text), titled({"Main", "Synthesis card"})};
            });
    _report->open();
}

Statistics& StatsWindows::statistics() {
    if (!_statistics) {
        _statistics = std::make_unique<Statistics>(_carnet);
        _previous = std::make_unique<PreviousDivesWindow>(*_statistics);
        connect(_statistics.get(), &Statistics::sharesChanged, this, [this] {
            if (_page) _page->refresh();
        });
    }
    return *_statistics;
}

void StatsWindows::openStatistics() {
    if (!_panel) {
        _panel = std::make_unique<StatisticsWindow>(statistics());
        _panel->setTools(_tools);
    }
    _panel->open();
}

void StatsWindows::openPage() {
    if (!_page)
        _page = std::make_unique<ReportWindow>(
            _desk, u"SynthStat"_s, "statisticsField", "printStatistics", [this] {
                return std::make_optional(ReportWindow::Report{statistics().fillStatisticsField(),
                                                               titled({"Carnet", "Statistics"})});
            });
    _page->open();
}

void StatsWindows::openGraphes() {
    if (!_graphes) _graphes = std::make_unique<GraphesWindow>(statistics());
    _graphes->open();
}

void StatsWindows::refreshReports() {
    if (_report) _report->refresh();
}

}  // namespace sargan
