#include "platform/ui/PaneSizes.h"

#include <QEvent>
#include <QJsonArray>
#include <QMainWindow>
#include <QScreen>

#include "platform/ui/FormView.h"
#include "platform/ui/PaneScroller.h"

namespace sargan {

using namespace Qt::StringLiterals;

PaneSizes::PaneSizes(QMainWindow& window, FormView& view, QSize least)
    : QObject(&window), _window(window), _view(view), _least(least), _pane(view.currentPane()) {
    _sizes.resize(view.paneCount());
    connect(&view, &FormView::paneChanged, this, &PaneSizes::turn);
    window.installEventFilter(this);
}

void PaneSizes::restore(const QJsonObject& place) {
    const QJsonArray kept = place[u"panes"_s].toArray();
    for (int pane = 0; pane < int(_sizes.size()); ++pane) {
        const QJsonArray one = kept[pane].toArray();
        if (one.size() == 2) _sizes[pane] = QSize(one[0].toInt(), one[1].toInt()).expandedTo(QSize(320, 240));
    }
    const QSize size = _sizes[_pane].isValid() ? _sizes[_pane] : _least;
    _window.resize(size.boundedTo(_window.screen()->availableSize() - QSize(20, 40)));
}

QJsonObject PaneSizes::place() {
    keep();
    QJsonArray panes;
    for (const QSize& size : std::as_const(_sizes))
        panes.append(size.isValid() ? QJsonArray{size.width(), size.height()} : QJsonArray());
    return {{u"panes"_s, panes}};
}

bool PaneSizes::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Show && !event->spontaneous()) fitLater();
    return false;
}

/// Whether the size is the window's own, and not the screen's.
bool PaneSizes::isFree() const {
    return _window.isVisible() && !_window.isMaximized() && !_window.isFullScreen();
}

void PaneSizes::turn(int pane) {
    keep();
    _pane = pane;
    fitLater();
}

void PaneSizes::keep() {
    if (isFree() && _fitted.isValid() && _window.size() != _fitted) _sizes[_pane] = _window.size();
}

void PaneSizes::fitLater() {
    // Nothing has its size yet while the pane is being turned.
    _fitted = {};
    _before = _window.size();
    QMetaObject::invokeMethod(this, &PaneSizes::fit, Qt::QueuedConnection);
}

void PaneSizes::fit() {
    if (!isFree()) return;
    // Whoever has given it another size since then means that one.
    if (_window.size() != _before) _sizes[_pane] = _window.size();
    const QSize wanted = _sizes[_pane].isValid() ? _sizes[_pane] : fitting();
    _window.resize(wanted.boundedTo(_window.screen()->availableSize() - QSize(20, 40)));
    _fitted = _window.size();
}

QSize PaneSizes::fitting() const {
    for (const PaneScroller* pane : _view.findChildren<PaneScroller*>())
        if (pane->isVisible())
            return (_window.size() + pane->sizeSideBySide() - _view.size()).expandedTo(_least);
    return _window.size();
}

}  // namespace sargan
