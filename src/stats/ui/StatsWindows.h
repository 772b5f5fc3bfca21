#pragma once

#include <QPointer>

#include "stats/Statistics.h"
#include "stats/ui/SynthesisChooser.h"

class QAction;

namespace sargan {

class GraphesWindow;
class PreviousDivesWindow;
class ReportWindow;
class StatisticsWindow;

/// The windows of a logbook's statistics and synthesis, made when they are first wanted. They outlive the
/// logbook's window when another takes its place, and go with the last one.
class StatsWindows : public QObject {
    Q_OBJECT

public:
    explicit StatsWindows(Carnet& carnet);
    ~StatsWindows() override;

    Statistics& statistics();
    Synthesis& synthesis() { return _synthesis; }

    /// The logbook's window of now: the chooser lies over it, the statistics window has these tools.
    void attachTo(QWidget& window, const QList<QAction*>& tools);
    /// Before that window goes and another takes its place.
    void detach();

    void openChooser();
    void openStatistics();
    /// The printable page of the statistics.
    void openPage();
    void openGraphes();
    void refreshReports();

    // Null until they were opened once.
    StatisticsWindow* panel() const { return _panel.get(); }
    PreviousDivesWindow* previousDives() const { return _previous.get(); }
    ReportWindow* page() const { return _page.get(); }
    ReportWindow* report() const { return _report.get(); }
    GraphesWindow* graphes() const { return _graphes.get(); }
    SynthesisChooser* chooser() const { return _chooser; }

private:
    void showChooser();
    void showReport();
    QString titled(const Message<>& words) const;

    Carnet& _carnet;
    Desk& _desk;
    Synthesis _synthesis;
    QWidget* _window = nullptr;
    QList<QAction*> _tools;
    std::unique_ptr<Statistics> _statistics;
    std::unique_ptr<StatisticsWindow> _panel;
    std::unique_ptr<PreviousDivesWindow> _previous;
    std::unique_ptr<ReportWindow> _page;
    std::unique_ptr<ReportWindow> _report;
    std::unique_ptr<GraphesWindow> _graphes;
    QPointer<SynthesisChooser> _chooser;
    bool _isChoosing = false;  ///< the chooser was open when its window went
    std::vector<NotificationCenter::Observation> _observations;
};

}  // namespace sargan
