#pragma once

#include "platform/ui/Printing.h"
#include "stats/Statistics.h"
#include "stats/Synthesis.h"

class QMenu;

namespace sargan {

class GraphesWindow;
class LogbookWindow;
class PreviousDivesWindow;
class ReportWindow;
class StatisticsWindow;
class SynthesisChooser;

/// Statistics, synthesis and printing of a logbook's window: its toolbar items, menu entries and windows,
/// which are made when they are first wanted and go with the logbook's.
class StatsActions : public QObject {
    Q_OBJECT

public:
    explicit StatsActions(LogbookWindow& window);
    ~StatsActions() override;

    /// Synthesis and statistics into the logbook's own menu.
    void addTo(QMenu* kindMenu);
    /// Printing the list into the File menu, in front of one of its actions.
    void addPrintingTo(QMenu* file, QAction* before);
    PrintActions& printing() const { return *_printing; }

    void divesForSynthesisWindow();
    void statisticsWindow();
    /// The printable page of the statistics.
    void statsSynthesisWindow();
    void graphesWindow();

    Statistics& statistics();
    /// Null until they were opened once.
    StatisticsWindow* statisticsWindowIfMade() const { return _panel.get(); }
    PreviousDivesWindow* previousDivesIfMade() const { return _previous.get(); }
    ReportWindow* statisticsPageIfMade() const { return _page.get(); }
    ReportWindow* synthesisReportIfMade() const { return _report.get(); }
    GraphesWindow* graphesIfMade() const { return _graphes.get(); }
    SynthesisChooser* chooserIfMade() const { return _chooser; }
    Synthesis& synthesis() { return _synthesis; }

private:
    QAction* make(const char* name, const char* icon, const QString& text, const QString& tip,
                  void (StatsActions::*run)());
    void addToToolbar();
    void showReport();
    void refreshReports();
    void validate();

    LogbookWindow& _window;
    Desk& _desk;
    Synthesis _synthesis;
    QAction* _synthese;
    QAction* _statisticsAction;
    QAction* _pageAction;
    QAction* _graphesAction;
    PrintActions* _printing;
    std::unique_ptr<Statistics> _statistics;
    std::unique_ptr<StatisticsWindow> _panel;
    std::unique_ptr<PreviousDivesWindow> _previous;
    std::unique_ptr<ReportWindow> _page;
    std::unique_ptr<ReportWindow> _report;
    std::unique_ptr<GraphesWindow> _graphes;
    SynthesisChooser* _chooser = nullptr;
    std::vector<NotificationCenter::Observation> _observations;
};

}  // namespace sargan
