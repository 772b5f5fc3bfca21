#pragma once

#include "platform/ui/Printing.h"
#include "stats/ui/StatsWindows.h"

class QMenu;

namespace sargan {

class LogbookWindow;

/// Statistics, synthesis and printing of a logbook's window: its toolbar items and menu entries.
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

    Statistics& statistics() { return _windows->statistics(); }
    Synthesis& synthesis() { return _windows->synthesis(); }
    // Null until they were opened once.
    StatisticsWindow* statisticsWindowIfMade() const { return _windows->panel(); }
    PreviousDivesWindow* previousDivesIfMade() const { return _windows->previousDives(); }
    ReportWindow* statisticsPageIfMade() const { return _windows->page(); }
    ReportWindow* synthesisReportIfMade() const { return _windows->report(); }
    GraphesWindow* graphesIfMade() const { return _windows->graphes(); }
    SynthesisChooser* chooserIfMade() const { return _windows->chooser(); }

private:
    QAction* make(const char* name, const char* icon, const QString& text, const QString& tip,
                  void (StatsActions::*run)());
    void addToToolbar();
    void validate();

    LogbookWindow& _window;
    Desk& _desk;
    std::shared_ptr<StatsWindows> _windows;
    QAction* _synthese;
    QAction* _statisticsAction;
    QAction* _pageAction;
    QAction* _graphesAction;
    PrintActions* _printing;
};

}  // namespace sargan
