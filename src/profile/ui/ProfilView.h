#pragma once

#include <QPixmap>
#include <QWidget>

#include "profile/Profil.h"

namespace sargan {

/// The graph of a profile in a window, as large as the window makes it. A thin line follows the pointer.
class ProfilView : public QWidget {
    Q_OBJECT

public:
    explicit ProfilView(const Strings& strings);

    const Profil& profil() const { return _profil; }
    void setProfil(const Profil& profil);
    /// What the graph tells about the pointer's place.
    QString readOut() const;

    QSize sizeHint() const override { return Profil::usualSize.toSize(); }

Q_SIGNALS:
    void pointerMoved();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void movePointer(std::optional<QPointF> place);

    const Strings& _strings;
    Profil _profil;
    QPixmap _picture;                   ///< of the graph; null when it must be drawn anew
    std::optional<QPointF> _posSouris;  ///< where the pointer was last; none when it has left
};

}  // namespace sargan
