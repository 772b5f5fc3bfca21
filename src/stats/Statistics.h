#pragma once

#include "logbook/Carnet.h"
#include "platform/print/StyledText.h"
#include "stats/Graphes.h"
#include "stats/StatisticsFields.h"

namespace sargan {

/// A logbook's statistics panel, its editor of previous dives, its printed page, and the values of its graph.
/// It follows the logbook, the switch, and what another logbook's editor stores.
class Statistics : public QObject {
    Q_OBJECT

public:
    explicit Statistics(Carnet& carnet);

    Carnet& carnet() const { return _carnet; }
    Desk& desk() const { return _carnet.desk(); }
    Form& panel() { return _panel; }
    const Form& panel() const { return _panel; }
    Form& editor() { return _editor; }

    bool ignoresPreviousDives() const { return _panel.isOn(_panel[statcontrol::ignorePrevious]); }
    /// Everything anew from the logbook and the settings.
    void updateStatistics();
    /// The panel's counts as shares of all dives, for the graph. With no dive at all they are no numbers.
    void setDataForStatGraphes();
    const GraphesShares& shares() const { return _shares; }

    /// Fills the editor from the settings and has it shown.
    void showEditStatisticsWindow();
    /// Stores what the editor holds, closes it, and shows the result. Nothing is checked.
    void validateStatisticsValues();
    void closeEditStatisticsWindow() { Q_EMIT editorClosed(); }

    /// The printable page: the panel's texts as they are displayed.
    StyledText fillStatisticsField() const;

Q_SIGNALS:
    void editorShown();
    void editorClosed();
    void sharesChanged();

private:
    void showTotals(const StatisticsTotals& totals);
    void showCounters(const StatisticsTotals& totals);
    void showText(const char* field, const QString& text) { _panel.setText(ControlName{field}, text); }

    Carnet& _carnet;
    Form _panel;
    Form _editor;
    PreviousDives _statisticsValues;
    GraphesShares _shares;
    NotificationCenter::Observation _stored;
};

}  // namespace sargan
