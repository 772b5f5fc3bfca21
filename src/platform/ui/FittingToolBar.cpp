#include "platform/ui/FittingToolBar.h"

#include <QEvent>
#include <QMainWindow>

namespace sargan {

FittingToolBar::FittingToolBar(const QString& title, Qt::ToolButtonStyle words, QMainWindow* window)
    : QToolBar(title, window), _words(words) {
    setMovable(false);
    setToolButtonStyle(words);
    window->addToolBar(this);
}

bool FittingToolBar::event(QEvent* event) {
    // What comes or goes is measured with words.
    if (event->type() == QEvent::ActionAdded || event->type() == QEvent::ActionRemoved)
        setToolButtonStyle(_words);
    const bool handled = QToolBar::event(event);
    if (event->type() == QEvent::LayoutRequest) fit();
    return handled;
}

void FittingToolBar::resizeEvent(QResizeEvent* event) {
    QToolBar::resizeEvent(event);
    fit();
}

void FittingToolBar::fit() {
    if (toolButtonStyle() == _words) _widthWithWords = sizeHint().width();
    setToolButtonStyle(width() < _widthWithWords ? Qt::ToolButtonIconOnly : _words);
}

}  // namespace sargan
