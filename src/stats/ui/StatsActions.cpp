#include "stats/ui/StatsActions.h"

#include <QMenu>
#include <QToolBar>
#include <QWidgetAction>

#include "logbook/ui/LogbookWindow.h"
#include "platform/print/TablePages.h"
#include "platform/ui/Icons.h"
#include "platform/ui/SourceTableView.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// Those of the window whose place this one takes, or new ones.
std::shared_ptr<StatsWindows> windowsOf(LogbookWindow& window) {
    std::shared_ptr<QObject>& kept = window.companions[u"stats"_s];
    if (!kept) kept = std::make_shared<StatsWindows>(window.carnet());
    return std::static_pointer_cast<StatsWindows>(kept);
}

}  // namespace

StatsActions::StatsActions(LogbookWindow& window)
    : QObject(&window), _window(window), _desk(window.carnet().desk()), _windows(windowsOf(window)) {
    setObjectName(u"stats"_s);
    const Strings& words = _desk.strings;
    _synthese = make("synthese", "texte", words.text({"Main", "Synthesis card"}),
                     words.text({"Carnet", "Tip synthesis card"}), &StatsActions::divesForSynthesisWindow);
    _statisticsAction = make("statistics", "statistics", words.text({"Carnet", "Statistics"}),
                             words.text({"Carnet", "Tip statistics"}), &StatsActions::statisticsWindow);
    _pageAction = make("statsSynthesis", "texte", words.ui("Statistics page"),
                       words.ui("The statistics as a page to print"), &StatsActions::statsSynthesisWindow);
    _graphesAction = make("graphes", "statistics", words.ui("Statistics graphs"),
                          words.ui("Depths and gases as bars"), &StatsActions::graphesWindow);
    _printing = new PrintActions("printLogbook", words.ui("Print the list…"), _desk, &window, [this] {
        _window.storePending();
        return std::make_unique<TablePages>(*_window.carnet().table(), _desk.strings,
                                            _window.carnet().displayName(), _window.table().columnOrder());
    });
    addToToolbar();
    connect(&window.carnet(), &Document::contentChanged, this, &StatsActions::validate);
    connect(&window, &DocumentWindow::replaced, this, [this] { _windows->detach(); });
    _windows->attachTo(window, {_pageAction, _graphesAction});
    validate();
}

StatsActions::~StatsActions() = default;

QAction* StatsActions::make(const char* name, const char* icon, const QString& text, const QString& tip,
                            void (StatsActions::*run)()) {
    auto* action = new QAction(iconNamed(icon), text, this);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void StatsActions::addToToolbar() {
    auto* bar = _window.findChild<QToolBar*>(u"tableViewToolbar"_s);
    if (!bar) return;
    QAction* search = nullptr;
    for (QAction* item : bar->actions())
        if (!search && qobject_cast<QWidgetAction*>(item)) search = item;
    bar->insertActions(search, {_synthese, _statisticsAction});
}

void StatsActions::addTo(QMenu* kindMenu) {
    kindMenu->addSeparator();
    kindMenu->addActions({_synthese, _statisticsAction, _pageAction, _graphesAction});
}

void StatsActions::addPrintingTo(QMenu* file, QAction* before) {
    file->insertActions(before, _printing->all());
    file->insertSeparator(before);
}

void StatsActions::divesForSynthesisWindow() {
    _window.storePending();
    _windows->openChooser();
}

void StatsActions::statisticsWindow() {
    _window.storePending();
    _windows->openStatistics();
}

void StatsActions::statsSynthesisWindow() {
    _window.storePending();
    _windows->openPage();
}

void StatsActions::graphesWindow() {
    _window.storePending();
    _windows->openGraphes();
}

void StatsActions::validate() {
    for (QAction* item : {_synthese, _statisticsAction})
        item->setEnabled(validateToolbarItem(_window.carnet(), item->objectName()));
}

}  // namespace sargan
