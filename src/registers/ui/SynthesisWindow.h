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
    void printSynthesis();
    PaperChooser paper = choosePaper;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Register& _register;
    QTextBrowser* _page;
};

}  // namespace sargan
