#include "platform/ui/PdfPageChooser.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QVBoxLayout>

#include "platform/form/PictureBytes.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize(460, 600);

}  // namespace

PdfPageChooser::PdfPageChooser(const QByteArray& pdf, const Strings& strings, QWidget* parent)
    : QDialog(parent), _pdf(pdf), _pages(pdfPageCount(pdf)), _preview(new QLabel), _field(new QSpinBox) {
    setObjectName(u"pdfPageChooser"_s);
    setWindowTitle(strings.ui("Choose a page"));
    _preview->setObjectName(u"pagePreview"_s);
    _preview->setAlignment(Qt::AlignCenter);
    _preview->setMinimumSize(120, 120);
    // As large as the window leaves it, whatever page it shows.
    _preview->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    _field->setObjectName(u"pageField"_s);
    _field->setRange(1, std::max(1, _pages));
    connect(_field, &QSpinBox::valueChanged, this, &PdfPageChooser::showPage);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(strings.text({"Main", "OK", "OK"}), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(strings.text({"Main", "Cancel"}), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(_preview, 1);
    column->addLayout(makePageRow(strings));
    column->addWidget(buttons);
    resize(usualSize.boundedTo(screen()->availableSize() - QSize(20, 40)));
    _field->setFocus();
    _field->selectAll();
}

QLayout* PdfPageChooser::makePageRow(const Strings& strings) {
    auto* label = new QLabel(strings.ui("&Page"));
    label->setBuddy(_field);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(label);
    row->addWidget(_field);
    row->addWidget(new QLabel(u"/ %1"_s.arg(_pages)));
    row->addStretch(1);
    return row;
}

int PdfPageChooser::page() const {
    return _field->value() - 1;
}

int PdfPageChooser::choose(const QByteArray& pdf, const Strings& strings, QWidget* parent) {
    PdfPageChooser chooser(pdf, strings, parent);
    return chooser.exec() == QDialog::Accepted ? chooser.page() : -1;
}

void PdfPageChooser::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    showPage();
}

void PdfPageChooser::showPage() {
    const qreal scale = devicePixelRatioF();
    QPixmap picture = QPixmap::fromImage(pdfPage(_pdf, page(), _preview->size() * scale));
    picture.setDevicePixelRatio(scale);
    _preview->setPixmap(picture);
}

}  // namespace sargan
