#include "platform/ui/ImageBinder.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPixmap>
#include <QToolButton>
#include <QUrl>

#include "platform/files/SafeFile.h"
#include "platform/form/PictureBytes.h"

namespace sargan {

namespace {

bool isOffered(const QMimeData& mime) {
    return mime.hasImage() || (mime.hasUrls() && mime.urls().first().isLocalFile());
}

/// The picture that is dropped or pasted; a file comes as its own bytes. Null when there is none.
QByteArray pictureIn(const QMimeData& mime) {
    if (mime.hasUrls() && mime.urls().first().isLocalFile()) {
        try {
            return pictureBytesOf(readFile(mime.urls().first().toLocalFile()));
        } catch (const std::exception&) {
            return {};
        }
    }
    return pictureBytesOf(qvariant_cast<QImage>(mime.imageData()));
}

}  // namespace

ImageBinder::ImageBinder(Form& form, int control, const Strings& strings, const FormChoosers& choosers,
                         QWidget* parent)
    : ControlBinder(form, control), _strings(strings), _choosers(choosers), _well(new QToolButton(parent)) {
    _well->setIconSize(QSize(240, 180));
    _well->setMinimumSize(QSize(200, 150));
    _well->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    _well->setText(words());
    _well->setFocusPolicy(Qt::StrongFocus);
    _well->setAcceptDrops(true);
    _well->installEventFilter(this);
    connect(_well, &QToolButton::clicked, this, [this] { choose(); });
    makeMenu();
}

QWidget* ImageBinder::widget() const {
    return _well;
}

void ImageBinder::makeMenu() {
    auto* menu = new QMenu(_well);
    const auto add = [&](const char* name, const QString& text, auto action) {
        QAction* item = menu->addAction(text);
        item->setObjectName(QLatin1String(name));
        connect(item, &QAction::triggered, this, action);
    };
    add("choosePicture", _strings.ui("Choose a picture…"), [this] { choose(); });
    add("pastePicture", _strings.ui("Paste"), [this] { paste(); });
    add("removePicture", _strings.ui("Remove the picture"), [this] { remove(); });
    _well->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(_well, &QWidget::customContextMenuRequested, menu,
            [this, menu](QPoint at) { menu->popup(_well->mapToGlobal(at)); });
}

bool ImageBinder::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            return keyPressed(static_cast<QKeyEvent*>(event));
        case QEvent::Resize:
            _well->setIconSize(_well->size() - QSize(12, 12));
            return false;
        case QEvent::DragEnter: {
            auto* drag = static_cast<QDragEnterEvent*>(event);
            if (isOffered(*drag->mimeData())) drag->acceptProposedAction();
            return true;
        }
        case QEvent::Drop: {
            auto* drop = static_cast<QDropEvent*>(event);
            if (takeFrom(*drop->mimeData())) drop->acceptProposedAction();
            return true;
        }
        default:
            return false;
    }
}

bool ImageBinder::keyPressed(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        paste();
        return true;
    }
    if (event->key() != Qt::Key_Delete && event->key() != Qt::Key_Backspace) return false;
    remove();
    return true;
}

QString ImageBinder::words() const {
    return _shown.isNull() ? _strings.ui("Choose a picture…") : _strings.ui("This picture cannot be shown");
}

void ImageBinder::show(const ControlState& state) {
    if (state.image.isSharedWith(_shown) && state.image.size() == _shown.size() &&
        state.image.isNull() == _shown.isNull())
        return;
    _shown = state.image;
    QPixmap picture;
    const bool isPicture = picture.loadFromData(_shown);
    _well->setIcon(isPicture ? QIcon(picture) : QIcon());
    _well->setToolButtonStyle(isPicture ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
    _well->setText(words());
}

void ImageBinder::choose() {
    const QByteArray bytes = _choosers.image(_well);
    if (!bytes.isNull()) put(bytes);
}

void ImageBinder::paste() {
    takeFrom(*QApplication::clipboard()->mimeData());
}

bool ImageBinder::takeFrom(const QMimeData& offered) {
    if (!_well->isEnabled() || !isOffered(offered)) return false;
    const QByteArray bytes = pictureIn(offered);
    if (bytes.isNull()) {
        QApplication::beep();
        return false;
    }
    put(bytes);
    return true;
}

void ImageBinder::put(const QByteArray& bytes) {
    form().setImage(control(), bytes);
    endEditing();
}

}  // namespace sargan
