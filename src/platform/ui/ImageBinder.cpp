#include "platform/ui/ImageBinder.h"

#include <QKeyEvent>
#include <QPixmap>
#include <QToolButton>

namespace sargan {

ImageBinder::ImageBinder(Form& form, int control, const Strings& strings, const FormChoosers& choosers,
                         QWidget* parent)
    : ControlBinder(form, control), _strings(strings), _choosers(choosers), _well(new QToolButton(parent)) {
    _well->setIconSize(QSize(240, 180));
    _well->setText(_strings.ui("Choose a picture…"));
    _well->setFocusPolicy(Qt::StrongFocus);
    _well->installEventFilter(this);
    connect(_well, &QToolButton::clicked, this, [this] { choose(); });
}

QWidget* ImageBinder::widget() const {
    return _well;
}

bool ImageBinder::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Delete && key != Qt::Key_Backspace) return false;
    form().setImage(control(), QByteArray());
    endEditing();
    return true;
}

void ImageBinder::show(const ControlState& state) {
    if (state.image.isSharedWith(_shown) && state.image.size() == _shown.size()) return;
    _shown = state.image;
    QPixmap picture;
    const bool isPicture = picture.loadFromData(_shown);
    _well->setIcon(isPicture ? QIcon(picture) : QIcon());
    _well->setToolButtonStyle(isPicture ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    _well->setText(_shown.isEmpty() ? _strings.ui("Choose a picture…")
                                    : _strings.ui("This picture cannot be shown"));
}

void ImageBinder::choose() {
    const QByteArray bytes = _choosers.image(_well);
    if (bytes.isNull()) return;
    form().setImage(control(), bytes);
    endEditing();
}

}  // namespace sargan
