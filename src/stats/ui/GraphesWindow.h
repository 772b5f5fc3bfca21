#pragma once

#include "platform/ui/Printing.h"
#include "settings/ui/AuxiliaryWindow.h"
#include "stats/Statistics.h"

namespace sargan {

/// The bars, as large as the window allows.
class GraphesView : public QWidget {
    Q_OBJECT

public:
    GraphesView(const Statistics& statistics, const UserDefaults& defaults)
        : _statistics(statistics), _defaults(defaults) {}

    /// The values and colours of now.
    Drawing drawing() const { return Graphes::drawing(_statistics.shares(), GraphesStyle::of(_defaults)); }
    QSize sizeHint() const override { return {int(Graphes::width), int(Graphes::height)}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Statistics& _statistics;
    const UserDefaults& _defaults;
};

/// The window of the statistics graphs: shows them, prints them, saves them as a picture.
class GraphesWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    explicit GraphesWindow(Statistics& statistics);

    void open() { bringToFront(); }
    GraphesView& view() const { return *_view; }
    PrintActions& printing() const { return *_printing; }

    /// Writes a picture; the name's ending says which kind. What goes wrong is alerted.
    bool savePicture(const QString& path);
    /// Asks where to save; tests answer in its place.
    std::function<QString(const QString& suggested)> chooseFile;

protected:
    void build() override;

private:
    QString title() const;

    Statistics& _statistics;
    GraphesView* _view = nullptr;
    PrintActions* _printing = nullptr;
    std::vector<NotificationCenter::Observation> _observations;
};

}  // namespace sargan
