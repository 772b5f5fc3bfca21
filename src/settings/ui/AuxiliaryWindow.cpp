#include "settings/ui/AuxiliaryWindow.h"

#include <QCloseEvent>
#include <QScreen>
#include <QShortcut>

namespace sargan {

using namespace Qt::StringLiterals;

AuxiliaryWindow::AuxiliaryWindow(Desk& desk, const QString& frameName) : _desk(desk), _frameName(frameName) {
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    for (const QKeySequence& key : {QKeySequence(Qt::Key_Escape), QKeySequence(u"Ctrl+W"_s)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
}

void AuxiliaryWindow::bringToFront() {
    if (isMinimized()) showNormal();
    if (!isVisible()) prepare();
    show();
    raise();
    activateWindow();
}

void AuxiliaryWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) build();
}

void AuxiliaryWindow::closeEvent(QCloseEvent* event) {
    _desk.defaults.store(
        placeKey(),
        QJsonObject{
            {u"x"_s, pos().x()}, {u"y"_s, pos().y()}, {u"width"_s, width()}, {u"height"_s, height()}});
    event->accept();
}

bool AuxiliaryWindow::restorePlace() {
    const QJsonObject place = _desk.defaults.value(placeKey()).toObject();
    if (place.isEmpty()) return false;
    const QRect room = screen()->availableGeometry();
    const QPoint corner(place[u"x"_s].toInt(), place[u"y"_s].toInt());
    const QSize size(place[u"width"_s].toInt(), place[u"height"_s].toInt());
    resize(size.expandedTo(QSize(240, 200)).boundedTo(room.size() - QSize(20, 40)));
    // A place on a screen that is gone would hide the window.
    if (room.contains(corner + QPoint(40, 20))) move(corner);
    return true;
}

}  // namespace sargan
