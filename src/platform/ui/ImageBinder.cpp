#include "platform/ui/ImageBinder.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <QUrl>

#include "platform/files/SafeFile.h"
#include "platform/form/PictureBytes.h"
#include "platform/ui/Icons.h"
#include "platform/ui/Mnemonics.h"

namespace sargan {

namespace {

bool isOffered(const QMimeData& mime) {
    return mime.hasImage() || (mime.hasUrls() && mime.urls().first().isLocalFile());
}

/// The file that is dropped or pasted; null when there is none, or none that can be read.
QByteArray fileIn(const QMimeData& mime) {
    if (!mime.hasUrls() || !mime.urls().first().isLocalFile()) return {};
    try {
        return readFile(mime.urls().first().toLocalFile());
    } catch (const std::exception&) {
        return {};
    }
}

/// What stands where a picture could be: the sign for that, and the button's words below it.
QPixmap invitation(const QToolButton& well) {
    constexpr int side = 48;
    const QFontMetrics metrics = well.fontMetrics();
    const QSize size(std::max(side, metrics.horizontalAdvance(well.text()) + 8), side + 2 * metrics.height());
    QPixmap drawn(size * well.devicePixelRatioF());
    drawn.setDevicePixelRatio(well.devicePixelRatioF());
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    iconNamed("noPhoto").paint(&painter, QRect(QPoint((size.width() - side) / 2, 0), QSize(side, side)));
    painter.setFont(well.font());
    painter.setPen(well.palette().color(QPalette::ButtonText));
    painter.drawText(QRect(QPoint(0, 0), size), Qt::AlignHCenter | Qt::AlignBottom, well.text());
    return drawn;
}

}  // namespace

ImageBinder::ImageBinder(Form& form, int control, const Desk& desk, const FormChoosers& choosers,
                         QWidget* parent)
    : ControlBinder(form, control), _desk(desk), _choosers(choosers), _well(new QToolButton(parent)) {
    _well->setMinimumSize(QSize(200, 150));
    _well->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    _well->setFocusPolicy(Qt::StrongFocus);
    _well->setAcceptDrops(true);
    _well->installEventFilter(this);
    connect(_well, &QToolButton::clicked, this, [this] { choose(); });
    makeMenu();
    showPicture();
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
    add("choosePicture", _desk.strings.ui("Choose a picture…"), [this] { choose(); });
    add("pastePicture", _desk.strings.ui("Paste"), [this] { paste(); });
    add("removePicture", _desk.strings.ui("Remove the picture"), [this] { remove(); });
    keepMnemonics(menu);
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
        case QEvent::PaletteChange:
        case QEvent::FontChange:
            showPicture();
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
    return _shown.isNull() ? _desk.strings.ui("Choose a picture…")
                           : _desk.strings.ui("This picture cannot be shown");
}

void ImageBinder::show(const ControlState& state) {
    if (state.image.isSharedWith(_shown) && state.image.size() == _shown.size() &&
        state.image.isNull() == _shown.isNull())
        return;
    _shown = state.image;
    showPicture();
}

void ImageBinder::showPicture() {
    QPixmap picture;
    const bool isPicture = picture.loadFromData(_shown);
    _well->setText(words());
    if (_shown.isNull()) picture = invitation(*_well);
    _well->setIcon(picture.isNull() ? QIcon() : QIcon(picture));
    _well->setToolButtonStyle(isPicture || _shown.isNull() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextOnly);
}

void ImageBinder::choose() {
    const QByteArray file = _choosers.image(_well);
    if (file.isNull() || takeFile(file)) return;
    _desk.prompt.alert(_desk.strings.ui("This file is no picture."));
}

void ImageBinder::paste() {
    takeFrom(*QApplication::clipboard()->mimeData());
}

bool ImageBinder::takeFrom(const QMimeData& offered) {
    if (!_well->isEnabled() || !isOffered(offered)) return false;
    const QByteArray file = fileIn(offered);
    const QImage picture = qvariant_cast<QImage>(offered.imageData());
    if (file.isNull() ? takeFile(pictureBytesOf(picture)) : takeFile(file)) return true;
    QApplication::beep();
    return false;
}

bool ImageBinder::takeFile(const QByteArray& file) {
    if (pdfPageCount(file) > 1) {
        // Later: whoever drops a file waits until the drop has been answered.
        QMetaObject::invokeMethod(
            this, [this, file] { askForPage(file); }, Qt::QueuedConnection);
        return true;
    }
    const QByteArray bytes = pictureBytesOf(file);
    if (!bytes.isNull()) put(bytes);
    return !bytes.isNull();
}

void ImageBinder::askForPage(const QByteArray& pdf) {
    const int page = _choosers.page(_well, pdf);
    const QByteArray bytes = page < 0 ? QByteArray() : pictureBytesOf(pdf, page);
    if (!bytes.isNull()) put(bytes);
}

void ImageBinder::put(const QByteArray& bytes) {
    form().setImage(control(), bytes);
    endEditing();
}

}  // namespace sargan
