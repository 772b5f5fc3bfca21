#pragma once

#include <QToolBar>

class QMainWindow;

namespace sargan {

/// A toolbar with pictures and words that in a narrow window drops the words rather than its last items.
class FittingToolBar : public QToolBar {
    Q_OBJECT

public:
    FittingToolBar(const QString& title, Qt::ToolButtonStyle words, QMainWindow* window);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();

    Qt::ToolButtonStyle _words;
    int _widthWithWords = 0;
};

}  // namespace sargan
