#pragma once

#include <QDialog>

#include "platform/ui/Printing.h"

class QLabel;
class QPrintPreviewWidget;
class QToolBar;

namespace sargan {

/// What would be printed, page by page, with the ways to print it. The window behind it waits, so that what
/// is shown stays true.
class PrintPreview : public QDialog {
    Q_OBJECT

public:
    PrintPreview(std::unique_ptr<Printable> printable, PrintActions& actions, Desk& desk, QWidget* parent);
    ~PrintPreview() override;

    int pageCount() const;

private:
    void fillToolbar(QToolBar& bar, PrintActions& actions);
    QAction* addTool(QToolBar& bar, const char* name, const QString& text, std::function<void()> run);
    void paint(QPrinter& printer);
    void pageChanged();
    void showPlace();

    Desk& _desk;
    std::unique_ptr<Printable> _printable;
    std::unique_ptr<QPrinter> _printer;
    QPrintPreviewWidget* _view;
    QLabel* _place;
};

}  // namespace sargan
