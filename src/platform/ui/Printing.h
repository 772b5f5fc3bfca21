#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "platform/desk/Desk.h"
#include "platform/print/Printable.h"

class QAction;
class QPrinter;
class QWidget;

namespace sargan {

/// Asks a person for paper, copies and printer; answers false when nothing is to be printed. Replaced in
/// tests.
using PaperChooser = std::function<bool(QPrinter& printer, QWidget* parent)>;

/// The desktop's print dialog, which prints into files too.
bool choosePaper(QPrinter& printer, QWidget* parent);
/// The desktop's dialog for the page.
bool choosePage(QPrinter& printer, QWidget* parent);

/// The paper that was chosen last, A4 at first. Margins, scale and orientation are the documents' own.
QPageSize paperOf(const UserDefaults& defaults);

/// Prints with the settings that all documents print with, after asking. Says so when the printer failed.
void printOnPaper(const Printable& printable, Desk& desk, QWidget* parent,
                  const PaperChooser& choose = choosePaper);
/// Asks for the paper and keeps it for everything that is printed from now on.
void runPageLayout(Desk& desk, QWidget* parent, const PaperChooser& choose = choosePage);

/// The printing of one window: print, preview, page set-up, and saving as PDF. What is printed is made when
/// it is asked for; null when there is nothing to print.
class PrintActions : public QObject {
    Q_OBJECT

public:
    using Source = std::function<std::unique_ptr<Printable>()>;

    /// `name`: of the print action; the others are called after what they do.
    PrintActions(const char* name, const QString& text, Desk& desk, QWidget* window, Source source);

    QAction* printAction() const { return _print; }
    QAction* previewAction() const { return _preview; }
    QAction* pdfAction() const { return _pdf; }
    QAction* pageLayoutAction() const { return _pageLayout; }
    QList<QAction*> all() const { return {_print, _preview, _pdf, _pageLayout}; }

    void print();
    void preview();
    void savePdf();
    void pageLayout();

    // How the person chooses; replaced in tests.
    PaperChooser paper = choosePaper;
    PaperChooser page = choosePage;
    /// Where a PDF goes; empty when the person gave up.
    std::function<QString(const QString& suggested)> file;

private:
    QAction* make(const char* name, const char* icon, const QString& text, void (PrintActions::*run)());

    Desk& _desk;
    QWidget* _window;
    Source _source;
    QAction* _print;
    QAction* _preview;
    QAction* _pdf;
    QAction* _pageLayout;
};

/// Writes bytes made by `make` to the file; what goes wrong is alerted.
bool writeFile(const QString& path, Desk& desk, const std::function<QByteArray()>& make);
/// Asks where to save: name filters as "PNG (*.png)", the first one first. Empty when the person gave up.
QString askWhereToWrite(QWidget* parent, const QString& title, const QString& suggested,
                        const QStringList& filters);

}  // namespace sargan
