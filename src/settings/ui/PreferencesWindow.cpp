#include "settings/ui/PreferencesWindow.h"

#include <QActionGroup>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/ui/FormView.h"
#include "platform/ui/Icons.h"
#include "platform/ui/Mnemonics.h"
#include "platform/ui/PaneScroller.h"

namespace sargan {

using namespace Qt::StringLiterals;

PreferencesWindow::PreferencesWindow(Desk& desk)
    : AuxiliaryWindow(desk, QLatin1String(preferencesLayout().name)), _preferences(desk) {
    setObjectName(QLatin1String(preferencesLayout().name));
    build();
    _preferences.onGoView = [this](int pane) { showPane(pane); };
    connect(&_preferences.form(), &Form::changed, this, &PreferencesWindow::showEdited);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, &PreferencesWindow::save);
    restorePlace();
}

PreferencesWindow::~PreferencesWindow() {
    delete takeCentralWidget();
}

void PreferencesWindow::build() {
    setWindowTitle(desk().strings.text(preferencesLayout().title) + u"[*]"_s);
    makeToolbar();
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    _view = new FormView(_preferences.form(), preferencesLayout(), desk(), content);
    column->addWidget(_view, 1);
    QWidget* row = buttonRow();
    column->addWidget(row);
    const QSet<QChar> taken = allotMnemonics(row);
    for (PaneScroller* pane : _view->findChildren<PaneScroller*>()) allotMnemonics(pane, taken);
    delete takeCentralWidget();
    setCentralWidget(content);
    if (isVisible()) content->show();
    _view->showPane(_pane);
    _preferences.showTemperatureUnit();
    showEdited();
    fitLater();
}

void PreferencesWindow::makeToolbar() {
    delete _toolbar;
    _toolbar = addToolBar(QString());
    _toolbar->setObjectName(u"prefsToolbar"_s);
    _toolbar->setMovable(false);
    _toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    _items = new QActionGroup(_toolbar);
    for (int pane = 0; pane < int(preferencesLayout().panes.size()); ++pane) {
        const LayoutPane& shown = preferencesLayout().panes[pane];
        QAction* item = _toolbar->addAction(iconNamed(shown.icon), desk().strings.text(shown.label));
        item->setObjectName(QLatin1String(shown.id));
        item->setCheckable(true);
        item->setChecked(pane == _pane);
        item->setShortcut(QKeySequence(u"Ctrl+%1"_s.arg(pane + 1)));
        _items->addAction(item);
        connect(item, &QAction::triggered, this, [this, pane] { showPane(pane); });
    }
}

QWidget* PreferencesWindow::buttonRow() {
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    QPushButton* reset = button("resetPreferences", desk().strings.ui("Reset"));
    reset->setToolTip(desk().strings.ui("First values into all panes; nothing is stored before you save"));
    connect(reset, &QPushButton::clicked, this, [this] { _preferences.resetPreferences(); });
    _feedback = new QLabel(row);
    _feedback->setObjectName(u"prefsFeedback"_s);
    _feedback->setTextFormat(Qt::PlainText);
    _feedback->setWordWrap(true);
    QPushButton* saving = button("savePrefs", desk().strings.ui("Save"));
    saving->setDefault(true);
    connect(saving, &QPushButton::clicked, this, &PreferencesWindow::save);
    line->addWidget(reset);
    line->addWidget(_feedback, 1);
    line->addWidget(saving);
    return row;
}

QPushButton* PreferencesWindow::button(const char* name, const QString& text) {
    auto* made = new QPushButton(text, this);
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false);
    return made;
}

void PreferencesWindow::prepare() {
    _preferences.showSettings();
    _view->takeFocus();
}

void PreferencesWindow::showPane(int pane) {
    _pane = pane;
    _view->showPane(pane);
    _items->actions().at(pane)->setChecked(true);
    fitLater();
}

void PreferencesWindow::save() {
    _preferences.savePrefs();
    const QString problem = desk().defaults.problem();
    _preferences.updateInterface(this);
    _preferences.updateColumnsTableViewNotification(this);
    showEdited();
    _feedback->setText(problem.isEmpty() ? desk().strings.ui("Saved") : problem);
}

void PreferencesWindow::showEdited() {
    const bool isEdited = _preferences.isEdited();
    setWindowModified(isEdited);
    _feedback->setText(isEdited ? desk().strings.ui("Not saved yet") : QString());
}

void PreferencesWindow::showEvent(QShowEvent* event) {
    AuxiliaryWindow::showEvent(event);
    fitLater();
}

void PreferencesWindow::fitLater() {
    QMetaObject::invokeMethod(this, &PreferencesWindow::fitToPane, Qt::QueuedConnection);
}

void PreferencesWindow::fitToPane() {
    if (!isVisible() || isMaximized() || isFullScreen()) return;
    for (const PaneScroller* pane : _view->findChildren<PaneScroller*>()) {
        if (!pane->isVisible()) continue;
        const QSize lacking = pane->sizeSideBySide() - pane->size();
        const QSize least(_toolbar->sizeHint().width(), 0);
        resize((size() + lacking).expandedTo(least).boundedTo(screen()->availableSize() - QSize(20, 40)));
    }
}

}  // namespace sargan
