#include "app/MainMenu.h"

#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>

#include "app/DesktopSuite.h"
#include "app/ReminderWindow.h"
#include "interchange/ui/InterchangeActions.h"
#include "logbook/ui/LogbookWindow.h"
#include "platform/ui/EditMenu.h"
#include "platform/ui/Icons.h"
#include "platform/ui/Mnemonics.h"
#include "registers/ui/RegisterWindow.h"
#include "stats/ui/StatsActions.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

constexpr Message<> ui(const char* english) {
    return {"Interface", english, english};
}

struct KindTitle {
    const char* typeName;
    Message<> words;
};

constexpr KindTitle kindTitles[] = {
    {"Carnet de plongee", ui("Logbook")},
    {"Divers documents", ui("Documents file")},
    {"Materiel", ui("Equipment")},
    {"Rebreather", ui("Rebreather")},
    {"Consommables", ui("Consumables")},
    {"Compresseur", ui("Compressor")},
    {"Epaves", ui("Wrecks")},
    {"Budget", ui("Budget")},
    {"Entreprises", ui("Firms")},
    {"Structures", ui("Clubs")},
};

/// Menu texts take an "&" as the mark of a key.
QString menuText(QString text) {
    return text.replace(u'&', u"&&"_s);
}

}  // namespace

QString kindTitle(const DocumentKind& kind, const Strings& strings) {
    for (const KindTitle& title : kindTitles)
        if (qstrcmp(title.typeName, kind.typeName) == 0) return strings.text(title.words);
    return QLatin1String(kind.typeName);
}

MainMenu::MainMenu(DocumentWindow& window, DesktopSuite& suite)
    : QObject(&window), _window(window), _suite(suite) {
    makeFileMenu();
    auto* edit = new EditMenu(window);
    window.menuBar()->addMenu(edit->menu());
    QMenu* kindMenu = window.makeKindMenu();
    if (kindMenu) window.menuBar()->addMenu(kindMenu);
    window.menuBar()->addMenu(suite.delegate().calculators().makeMenu(window.menuBar()));
    makeSettingsMenu();
    makeWindowMenu();
    makeHelpMenu();
    if (auto* logbook = qobject_cast<LogbookWindow*>(&window)) {
        logbook->shareWithEditWindow(edit->undoActions() << _save);
        // Before what ends the menu: a line and Quit.
        (new InterchangeActions(*logbook))->addTo(_file, _file->actions().constLast());
        auto* stats = new StatsActions(*logbook);
        stats->addTo(kindMenu);
        stats->addPrintingTo(_file, _file->actions().constLast());
        connect(logbook, &LogbookWindow::renumberingWanted, this,
                [this] { _suite.delegate().sendRenumDivesNotification(&_window); });
    }
    if (auto* list = qobject_cast<RegisterWindow*>(&window)) {
        list->shareWithEditWindow(edit->undoActions() << _save);
        connect(list, &RegisterWindow::saveWanted, this, &MainMenu::save);
    }
    keepMnemonics(window.menuBar());
}

QAction* MainMenu::add(QMenu* menu, const char* name, const QString& text, const QKeySequence& key,
                       void (MainMenu::*slot)()) {
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void MainMenu::makeFileMenu() {
    const Strings& strings = _window.document().strings();
    QMenu* file = _file = _window.menuBar()->addMenu(strings.ui("&File"));
    add(file, "newDocument", strings.ui("New"), QKeySequence::New, &MainMenu::newStandard);
    makeNewMenu(file);
    add(file, "openDocument", strings.ui("Open…"), QKeySequence::Open, &MainMenu::open);
    _recent = file->addMenu(strings.ui("Open Recent"));
    connect(_recent, &QMenu::aboutToShow, this, &MainMenu::fillRecentMenu);
    file->addSeparator();
    add(file, "closeDocument", strings.ui("Close"), QKeySequence(u"Ctrl+W"_s), &MainMenu::close);
    _save = add(file, "saveDocument", strings.ui("Save"), QKeySequence::Save, &MainMenu::save);
    add(file, "saveDocumentAs", strings.ui("Save As…"), QKeySequence(u"Shift+Ctrl+S"_s), &MainMenu::saveAs);
    _revert = add(file, "revertDocument", strings.ui("Revert…"), {}, &MainMenu::revert);
    file->addSeparator();
    add(file, "quit", strings.ui("Quit"), QKeySequence(u"Ctrl+Q"_s), &MainMenu::quit);
    connect(file, &QMenu::aboutToShow, this, &MainMenu::updateFileMenu);
    connect(file, &QMenu::aboutToHide, this, &MainMenu::enableFileMenu);
}

void MainMenu::makeNewMenu(QMenu* file) {
    const Strings& strings = _window.document().strings();
    QMenu* kinds = file->addMenu(strings.ui("New Document"));
    for (const DocumentKind& kind : _suite.controller().kinds().all()) {
        QAction* action = kinds->addAction(kindTitle(kind, strings));
        action->setObjectName(QLatin1String(kind.newAction));
        connect(action, &QAction::triggered, this,
                [this, action] { _suite.controller().newDocumentMenuAction(action->objectName()); });
    }
}

void MainMenu::makeSettingsMenu() {
    const Strings& strings = _window.document().strings();
    QMenu* settings = _window.menuBar()->addMenu(strings.ui("&Settings"));
    settings->setObjectName(u"settingsMenu"_s);
    add(settings, "showPreferencePanel", strings.ui("Preferences…"), QKeySequence(u"Ctrl+,"_s),
        &MainMenu::showPreferences);
    settings->addSeparator();
    QMenu* lists = settings->addMenu(strings.ui("Pick lists"));
    lists->setObjectName(u"pickListsMenu"_s);
    _suite.delegate().pickLists().fill(lists);
}

void MainMenu::makeWindowMenu() {
    const Strings& strings = _window.document().strings();
    _windows = _window.menuBar()->addMenu(strings.ui("&Window"));
    connect(_windows, &QMenu::aboutToShow, this, &MainMenu::fillWindowMenu);
    fillWindowMenu();
}

void MainMenu::makeHelpMenu() {
    const Strings& strings = _window.document().strings();
    QMenu* help = _window.menuBar()->addMenu(strings.ui("&Help"));
    add(help, "about", strings.ui("About Sargan"), {}, &MainMenu::about);
}

void MainMenu::fillRecentMenu() {
    const Strings& strings = _window.document().strings();
    _recent->clear();
    const QStringList recent = _suite.controller().recentDocuments().value_or(QStringList());
    for (const QString& path : recent) {
        QAction* action = _recent->addAction(menuText(QFileInfo(path).fileName()));
        action->setToolTip(path);
        connect(action, &QAction::triggered, this, [this, path] { _suite.controller().openFile(path); });
    }
    _recent->setToolTipsVisible(true);
    if (!recent.isEmpty()) _recent->addSeparator();
    QAction* clear = _recent->addAction(strings.ui("Clear Menu"));
    clear->setObjectName(u"clearRecentDocuments"_s);
    clear->setEnabled(!recent.isEmpty());
    connect(clear, &QAction::triggered, this, [this] { _suite.controller().clearRecentDocuments(); });
}

void MainMenu::fillWindowMenu() {
    const Strings& strings = _window.document().strings();
    _windows->clear();
    QAction* note = _windows->addAction(strings.ui("Reminder note"));
    note->setObjectName(u"showPenseBete"_s);
    connect(note, &QAction::triggered, this,
            [this] { _suite.controller().penseBeteWindow().bringToFront(); });
    _windows->addSeparator();
    for (DocumentWindow* window : _suite.windows().all()) {
        const QString mark = window->document().isEdited() ? u"*"_s : QString();
        QAction* action = _windows->addAction(menuText(window->document().displayName()) + mark);
        action->setCheckable(true);
        action->setChecked(window == &_window);
        connect(action, &QAction::triggered, window, &DocumentWindow::bringToFront);
    }
}

void MainMenu::updateFileMenu() {
    const Document& document = _window.document();
    _revert->setEnabled(!document.path().isEmpty() && (document.isEdited() || _window.mayHavePending()));
}

void MainMenu::enableFileMenu() {
    _revert->setEnabled(true);
}

void MainMenu::newStandard() {
    _suite.controller().openUntitledDocument();
}

void MainMenu::open() {
    _suite.chooseAndOpen();
}

void MainMenu::close() {
    _window.close();
}

void MainMenu::save() {
    _window.storePending();
    _suite.saving().save(_window.document());
}

void MainMenu::saveAs() {
    _window.storePending();
    _suite.saving().saveAs(_window.document());
}

void MainMenu::revert() {
    _window.storePending();
    _suite.saving().revert(_window.document());
}

void MainMenu::quit() {
    _suite.quitLater();
}

void MainMenu::showPreferences() {
    _suite.controller().showPreferencePanel();
}

void MainMenu::about() {
    const Strings& strings = _window.document().strings();
    QMessageBox box(&_window);
    box.setObjectName(u"aboutWindow"_s);
    box.setWindowTitle(strings.ui("About Sargan"));
    box.setIconPixmap(iconNamed("sargan").pixmap(64, 64));
    box.setText(u"<b>Sargan " SARGAN_VERSION "</b>"_s);
    box.setInformativeText(strings.ui("Record-keeping for divers: logbook, registers and calculators."));
    box.addButton(strings.text({"Main", "OK", "OK"}), QMessageBox::AcceptRole);
    box.exec();
}

}  // namespace sargan
