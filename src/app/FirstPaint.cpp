#include "app/FirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace sargan {

namespace {

QElapsedTimer& sinceStart() {
    static QElapsedTimer timer;
    return timer;
}

}  // namespace

void FirstPaint::startClock() {
    sinceStart().start();
}

qint64 FirstPaint::elapsed() {
    return sinceStart().isValid() ? sinceStart().elapsed() : 0;
}

FirstPaint::FirstPaint(QWidget* window) : QObject(window) {
    window->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // The event loop comes back when the window's content has gone to the screen.
        QTimer::singleShot(0, this, [this] { Q_EMIT painted(elapsed()); });
    }
    return false;
}

}  // namespace sargan
