#pragma once

#include <QTextBrowser>
#include <QTimer>

#include "platform/print/StyledText.h"
#include "platform/ui/Printing.h"
#include "settings/ui/AuxiliaryWindow.h"

namespace sargan {

/// A page of styled text to read, print and save: the synthesis, the statistics page. Paper is white in
/// every appearance of the desktop, for the inks are chosen for it.
class ReportWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    /// What a window shows.
    struct Report {
        StyledText text;
        QString title;
    };

    /// `view`: the text view's name; `printName`: of the print action. No report leaves the one before.
    ReportWindow(Desk& desk, const QString& frameName, const char* view, const char* printName,
                 std::function<std::optional<Report>()> source);

    /// In front, with the report of now.
    void open();
    /// The report anew, when the window can be seen.
    void refresh();
    QTextBrowser& view() const { return *_view; }
    PrintActions& printing() const { return *_printing; }

    /// Writes the report; the name's ending says in which format. What goes wrong is alerted.
    bool saveReport(const QString& path);
    /// Whether the view holds the whole report already: a long one comes piece by piece, and the window
    /// answers meanwhile.
    bool isComplete() const { return _shownRuns == _report.text.runs().size(); }
    /// Asks where to save; tests answer in its place.
    std::function<QString(const QString& suggested)> chooseFile;

protected:
    void build() override;
    void showEvent(QShowEvent* event) override;

private:
    void fill();
    void showMore();
    std::unique_ptr<Printable> printable() const;

    const char* _viewName;
    const char* _printName;
    std::function<std::optional<Report>()> _source;
    Report _report;
    qsizetype _shownRuns = 0;  ///< of the report
    int _wantedScroll = 0;     ///< where the reader was before the report came anew
    QTimer _more;
    QTextBrowser* _view = nullptr;
    PrintActions* _printing = nullptr;
};

}  // namespace sargan
