#include "profile/ui/ProfilView.h"

#include <QMouseEvent>
#include <QPainter>

namespace sargan {

ProfilView::ProfilView(const Strings& strings) : _strings(strings) {
    setObjectName(QStringLiteral("profil"));
    setMouseTracking(true);
    setMinimumSize(240, 160);
    setCursor(Qt::CrossCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void ProfilView::setProfil(const Profil& profil) {
    _profil = profil;
    _picture = {};
    update();
}

QString ProfilView::readOut() const {
    const QPointF nowhere(qQNaN(), 0);
    return _profil.readOut(_posSouris.value_or(nowhere), size(), _strings);
}

void ProfilView::paintEvent(QPaintEvent*) {
    const qreal ratio = devicePixelRatioF();
    if (_picture.isNull() || _picture.devicePixelRatio() != ratio) {
        _picture = QPixmap(size() * ratio);
        _picture.setDevicePixelRatio(ratio);
        QPainter painter(&_picture);
        _profil.draw(painter, size(), _strings);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, _picture);
    const ProfilGeometry geometry(size(), _profil.profilData);
    const auto sample = _posSouris ? geometry.sampleAt(*_posSouris) : std::nullopt;
    if (!sample) return;
    const qreal x = geometry.x(*sample);
    const bool isDark = _profil.style.gradient && qGray(_profil.style.linesColor.rgb()) > 127;
    painter.setPen(QPen(isDark ? QColor(255, 255, 255, 120) : QColor(0, 0, 0, 120), 1));
    painter.drawLine(geometry.toPainter(x, geometry.surface()),
                     geometry.toPainter(x, ProfilGeometry::gasBottom));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(_profil.style.plotColor);
    painter.drawEllipse(geometry.toPainter(x, geometry.y(_profil.profilData.at(*sample))), 3.5, 3.5);
}

void ProfilView::resizeEvent(QResizeEvent*) {
    _picture = {};
}

void ProfilView::movePointer(std::optional<QPointF> place) {
    _posSouris = place;
    update();
    Q_EMIT pointerMoved();
}

void ProfilView::mouseMoveEvent(QMouseEvent* event) {
    movePointer(event->position());
}

void ProfilView::leaveEvent(QEvent*) {
    movePointer(std::nullopt);
}

}  // namespace sargan
