#include "platform/ui/FormView.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "platform/document/DocumentError.h"
#include "platform/files/SafeFile.h"
#include "platform/ui/PaneBuilder.h"
#include "platform/ui/PdfPageChooser.h"

namespace sargan {

FormChoosers desktopChoosers(const Desk& desk) {
    FormChoosers choosers;
    choosers.color = [](QWidget* parent, const QColor& old) {
        return QColorDialog::getColor(old.isValid() ? old : QColor(Qt::white), parent, {},
                                      QColorDialog::ShowAlphaChannel);
    };
    choosers.image = [&desk](QWidget* parent) -> QByteArray {
        const QString path = QFileDialog::getOpenFileName(
            parent, desk.strings.ui("Choose a picture…"), {},
            desk.strings.ui("Pictures") +
                QStringLiteral(" (*.png *.jpg *.jpeg *.tif *.tiff *.gif *.bmp *.pdf)"));
        if (path.isEmpty()) return {};
        try {
            return readFile(path);
        } catch (const std::exception& error) {
            desk.prompt.alert(sentenceOf(error));
            return {};
        }
    };
    choosers.page = [&desk](QWidget* parent, const QByteArray& pdf) {
        return PdfPageChooser::choose(pdf, desk.strings, parent);
    };
    return choosers;
}

FormView::FormView(Form& form, const WindowLayout& layout, Desk& desk, QWidget* parent)
    : QWidget(parent),
      choosers(desktopChoosers(desk)),
      _form(form),
      _desk(desk),
      _panes(new QStackedWidget(this)) {
    _binders.resize(std::size_t(form.count()));
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(_panes);
    build(layout);
    connect(&form, &Form::changed, this, &FormView::controlChanged);
    connect(&form, &Form::focusWanted, this, &FormView::focusOn);
    connect(_panes, &QStackedWidget::currentChanged, this, &FormView::paneChanged);
}

FormView::~FormView() {
    // A field that dies with the focus still says that editing ended; nobody is left to hear it.
    for (const auto& binder : _binders)
        if (binder) binder->widget()->disconnect(binder.get());
}

void FormView::build(const WindowLayout& layout) {
    PaneBuilder builder(
        _desk.strings, [this](const char* control, QWidget* holder) { return bind(control, holder); },
        [this](const QString& action) { _form.press(action); });
    for (const LayoutPane& pane : layout.panes) _panes->addWidget(builder.build(pane));
}

ControlBinder* FormView::bind(const char* control, QWidget* parent) {
    const int index = _form[ControlName{control}];
    auto& binder = _binders[std::size_t(index)];
    if (binder) throw std::logic_error(std::string("a layout has the same control twice: ") + control);
    binder = makeBinder(_form, index, _desk, choosers, parent);
    _order.append(index);
    return binder.get();
}

int FormView::paneCount() const {
    return _panes->count();
}

int FormView::currentPane() const {
    return _panes->currentIndex();
}

void FormView::showPane(int pane) {
    if (pane < 0 || pane >= paneCount() || pane == currentPane()) return;
    _panes->setCurrentIndex(pane);
    if (isVisible()) takeFocus();
}

void FormView::setReadOnly(bool readOnly) {
    for (const auto& binder : _binders)
        if (binder) binder->setLocked(readOnly);
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons) button->setEnabled(!readOnly);
}

void FormView::takeFocus() {
    const int wanted = _form.focus();
    if (wanted >= 0 && _binders[std::size_t(wanted)] &&
        isOnCurrentPane(_binders[std::size_t(wanted)]->widget()))
        return focusOn(wanted);
    for (const int control : std::as_const(_order)) {
        ControlBinder& binder = *_binders[std::size_t(control)];
        const QWidget* widget = binder.widget();
        if (widget->focusProxy()) widget = widget->focusProxy();
        // A result can be clicked to be copied, but there is nothing to type into it.
        if (!(widget->focusPolicy() & Qt::TabFocus) || !isOnCurrentPane(widget)) continue;
        return binder.takeFocus();
    }
}

void FormView::finishEditing() {
    for (const auto& binder : _binders)
        if (binder) binder->finishEditing();
}

void FormView::showEvent(QShowEvent* event) {
    if (_stale) refresh();
    QWidget::showEvent(event);
}

void FormView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) return;
    // Colours are shown so that they can be read on the new background.
    if (isVisible())
        refresh();
    else
        _stale = true;
}

void FormView::refresh() {
    _stale = false;
    for (const auto& binder : _binders)
        if (binder) binder->refresh();
}

void FormView::controlChanged(int control) {
    const auto& binder = _binders[std::size_t(control)];
    if (!binder) return;
    if (isVisible())
        binder->refresh();
    else
        _stale = true;
}

void FormView::focusOn(int control) {
    const auto& binder = _binders[std::size_t(control)];
    // A pane is never switched behind the person's back: a button may ask for a control on another one.
    if (binder && isVisible() && isOnCurrentPane(binder->widget())) binder->takeFocus();
}

bool FormView::isOnCurrentPane(const QWidget* widget) const {
    return _panes->currentWidget() && _panes->currentWidget()->isAncestorOf(widget);
}

}  // namespace sargan
