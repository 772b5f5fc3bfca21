#pragma once

#include <QMainWindow>

#include "calculators/Calculator.h"

class QTabBar;

namespace sargan {

class FormView;
class ResultMarks;

/// The window of one calculator, whichever it is. Return presses the button that follows the field with the
/// keyboard; Ctrl+Shift+C copies the results. Closing only hides it, with everything that is in it.
class CalculatorWindow : public QMainWindow {
    Q_OBJECT

public:
    CalculatorWindow(const CalculatorSpec& spec, Desk& desk);
    ~CalculatorWindow() override;

    Calculator& calculator() { return _calculator; }
    FormView& view() const { return *_view; }

    void bringToFront();
    /// Presses the action that belongs to where the keyboard is.
    void pressNext();
    void copyResults() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void build();
    QWidget* copyRow();
    QTabBar* makeTabs();
    void showPaneOf(int control);
    void markDefaultButtons();
    void restoreSize();
    void growLater();
    void growToFit();
    QString nextAction() const;
    QString placeKey() const;

    Desk& _desk;
    Calculator _calculator;
    FormView* _view = nullptr;
    ResultMarks* _marks = nullptr;
    QTabBar* _tabs = nullptr;  ///< null for a window of one pane
    bool _growing = false;
};

}  // namespace sargan
