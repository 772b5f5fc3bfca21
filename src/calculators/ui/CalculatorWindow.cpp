#include "calculators/ui/CalculatorWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QVBoxLayout>

#include "calculators/WindowBuilder.h"
#include "calculators/ui/ResultMarks.h"
#include "platform/ui/FormView.h"
#include "platform/ui/PaneScroller.h"

namespace sargan {

using namespace Qt::StringLiterals;

CalculatorWindow::CalculatorWindow(const CalculatorSpec& spec, Desk& desk)
    : _desk(desk), _calculator(spec, desk) {
    setObjectName(QLatin1String(spec.layout.name));
    setAttribute(Qt::WA_QuitOnClose, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    build();
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &CalculatorWindow::pressNext);
    for (const QKeySequence& key : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence(u"Ctrl+Shift+C"_s), this), &QShortcut::activated, this,
            &CalculatorWindow::copyResults);
    connect(&_calculator.form(), &Form::changed, this, &CalculatorWindow::showPaneOf);
    _calculator.controller().onShowWindow = [this] { bringToFront(); };
    restoreSize();
}

CalculatorWindow::~CalculatorWindow() = default;

void CalculatorWindow::build() {
    const CalculatorSpec& spec = _calculator.spec();
    setWindowTitle(_desk.strings.text(spec.layout.title) + u" – "_s + _desk.strings.text(spec.subject));
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(6, 6, 6, 6);
    _view = new FormView(_calculator.form(), spec.layout, _desk, content);
    _tabs = spec.paneControl ? makeTabs() : nullptr;
    if (_tabs) column->addWidget(_tabs);
    column->addWidget(_view, 1);
    column->addWidget(copyRow());
    _marks = new ResultMarks(_calculator.form(), _desk, _view);
    markDefaultButtons();
    for (const QScrollArea* pane : _view->findChildren<QScrollArea*>())
        pane->widget()->installEventFilter(this);
    setCentralWidget(content);
    if (isVisible()) content->show();
    if (_tabs) showPaneOf(_calculator.form()[ControlName{spec.paneControl}]);
}

QWidget* CalculatorWindow::copyRow() {
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    auto* copy = new QPushButton(_desk.strings.text(calculatorWord("Copy results (Ctrl+Shift+C)")), row);
    copy->setObjectName(u"copyResults"_s);
    copy->setAutoDefault(false);
    connect(copy, &QPushButton::clicked, this, &CalculatorWindow::copyResults);
    line->addStretch(1);
    line->addWidget(copy);
    return row;
}

QTabBar* CalculatorWindow::makeTabs() {
    auto* tabs = new QTabBar(this);
    const CalculatorSpec& spec = _calculator.spec();
    tabs->setObjectName(QLatin1String(spec.paneControl));
    tabs->setExpanding(false);
    for (const LayoutPane& pane : spec.layout.panes) tabs->addTab(_desk.strings.text(pane.label));
    connect(tabs, &QTabBar::currentChanged, this, [this](int pane) {
        const CalculatorSpec& own = _calculator.spec();
        _calculator.form().setText(ControlName{own.paneControl},
                                   QString::fromLatin1(own.layout.panes[pane].id));
    });
    return tabs;
}

void CalculatorWindow::showPaneOf(int control) {
    const CalculatorSpec& spec = _calculator.spec();
    if (!spec.paneControl || control != _calculator.form()[ControlName{spec.paneControl}]) return;
    for (int pane = 0; pane < int(spec.layout.panes.size()); ++pane) {
        if (_calculator.form().text(control) != QLatin1String(spec.layout.panes[pane].id)) continue;
        const QSignalBlocker quiet(_tabs);
        _tabs->setCurrentIndex(pane);
        _view->showPane(pane);
    }
}

void CalculatorWindow::markDefaultButtons() {
    const QString first = QString::fromLatin1(_calculator.spec().actions.first());
    for (QPushButton* button : _view->findChildren<QPushButton*>(first)) button->setDefault(true);
}

void CalculatorWindow::bringToFront() {
    if (isMinimized()) showNormal();
    const bool wasHidden = !isVisible();
    show();
    raise();
    activateWindow();
    if (wasHidden) _view->takeFocus();
}

QString CalculatorWindow::nextAction() const {
    const QWidget* focus = focusWidget();
    // A radio button stands for the control that it is part of.
    if (qobject_cast<const QRadioButton*>(focus)) focus = focus->parentWidget();
    const QString here = focus ? focus->objectName() : QString();
    QString last = QString::fromLatin1(_calculator.spec().actions.first());
    bool isBehind = false;
    for (const LayoutSection& section : _calculator.spec().layout.panes[_view->currentPane()].sections)
        for (const LayoutRow& row : section.rows)
            for (const LayoutItem& item : row.items) {
                isBehind = isBehind || (!here.isEmpty() &&
                                        here == QLatin1String(item.control ? item.control : item.action));
                if (item.action) last = QString::fromLatin1(item.action);
                if (item.action && isBehind) return last;
            }
    return isBehind ? last : QString::fromLatin1(_calculator.spec().actions.first());
}

void CalculatorWindow::pressNext() {
    _calculator.form().press(nextAction());
}

void CalculatorWindow::copyResults() const {
    const QString text = _calculator.resultText();
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

void CalculatorWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) build();
    // Colours are chosen by the background; the view has to take its new one first.
    if (event->type() == QEvent::PaletteChange && _marks)
        QMetaObject::invokeMethod(_marks, &ResultMarks::updateAll, Qt::QueuedConnection);
}

void CalculatorWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // A view that was hidden has just written its labels anew.
    _marks->updateAll();
    growLater();
}

void CalculatorWindow::closeEvent(QCloseEvent* event) {
    _desk.defaults.store(placeKey(), QJsonObject{{u"width"_s, width()}, {u"height"_s, height()}});
    event->accept();
}

QString CalculatorWindow::placeKey() const {
    return u"window "_s + QLatin1String(_calculator.spec().layout.name);
}

void CalculatorWindow::restoreSize() {
    const QJsonObject place = _desk.defaults.value(placeKey()).toObject();
    const QSize size = place.isEmpty() ? sizeHint().expandedTo(QSize(460, 240))
                                       : QSize(place[u"width"_s].toInt(), place[u"height"_s].toInt());
    resize(size.expandedTo(QSize(280, 160)).boundedTo(screen()->availableSize() - QSize(20, 40)));
}

bool CalculatorWindow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) growLater();
    return false;
}

void CalculatorWindow::growLater() {
    if (std::exchange(_growing, true)) return;
    QMetaObject::invokeMethod(this, &CalculatorWindow::growToFit, Qt::QueuedConnection);
}

void CalculatorWindow::growToFit() {
    _growing = false;
    if (!isVisible() || isMaximized() || isFullScreen()) return;
    QSize lacking(0, 0);
    for (const PaneScroller* pane : _view->findChildren<PaneScroller*>())
        lacking = lacking.expandedTo(pane->leastSideBySide() - pane->viewport()->size());
    if (lacking.isNull()) return;
    resize((size() + lacking).boundedTo(screen()->availableSize()));
}

}  // namespace sargan
