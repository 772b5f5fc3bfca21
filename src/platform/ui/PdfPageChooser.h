#pragma once

#include <QDialog>

#include "platform/text/Strings.h"

class QLabel;
class QSpinBox;

namespace sargan {

/// Shows the pages of a PDF one at a time and asks which one is wanted.
class PdfPageChooser : public QDialog {
    Q_OBJECT

public:
    PdfPageChooser(const QByteArray& pdf, const Strings& strings, QWidget* parent);

    /// The page on show, counted from 0.
    int page() const;

    /// Asks for a page; -1 when the person gave up.
    static int choose(const QByteArray& pdf, const Strings& strings, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QLayout* makePageRow(const Strings& strings);
    void showPage();

    QByteArray _pdf;
    int _pages;
    QLabel* _preview;
    QSpinBox* _field;
};

}  // namespace sargan
