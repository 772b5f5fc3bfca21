#pragma once

#include <QMainWindow>

#include "platform/ui/Printing.h"
#include "registers/Register.h"

class QTextBrowser;

namespace sargan {

/// The window of a register's synthesis card: the selected record as a page to read and to print.
class SynthesisWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit SynthesisWindow(Register& shown);

    /// In front, with the card of the selected record.
    void open();
    /// The card of the selected record; as it was when none is selected.
    void fillSynthesisWindow();
    /// The page as it is, and for a window made in this one's stead: with no record selected nothing else
    /// tells which card it was.
    QString shownPage() const;
    void showPage(const QString& page);
    /// Printing, preview and PDF of the selected record's card.
    PrintActions& printing() const { return *_printing; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::unique_ptr<Printable> printableCard() const;

    Register& _register;
    QTextBrowser* _page;
    PrintActions* _printing;
};

}  // namespace sargan
