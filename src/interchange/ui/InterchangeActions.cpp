#include "interchange/ui/InterchangeActions.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QStandardPaths>
#include <QToolBar>
#include <QWidgetAction>

#include "interchange/Formats.h"
#include "interchange/Import.h"
#include "logbook/ui/LogbookWindow.h"
#include "platform/document/Sentences.h"
#include "platform/ui/Icons.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

/// The import actions by the name of their reader, and what they are called.
struct ImportItem {
    const char* reader;
    const char* action;
    Message<> label;
    Message<> tip;
    bool isInToolbar;
};

constexpr ImportItem importItems[] = {
    {"udcf", "importUDCF", {"Carnet", "Import UDCF"}, {"Carnet", "Tip import UDCF"}, true},
    {"uddf", "importUDDF", {"Carnet", "Import UDDF"}, {"Carnet", "Tip import UDDF"}, true},
    {"handheld",
     "importHandheld",
     {"Interface", "Import handheld logbook", "Import handheld logbook"},
     {"Interface", "Import handheld logbook", "Import handheld logbook"},
     false},
};

QString folderOf(const Document& document) {
    if (!document.path().isEmpty()) return QFileInfo(document.path()).absolutePath();
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(usual).isDir() ? usual : QDir::homePath();
}

QString askWhatToImport(QWidget* parent, const Document& document, const DiveReader& reader) {
    QStringList patterns;
    for (const QString& suffix : reader.suffixes()) patterns << u"*."_s + suffix;
    const Strings& strings = document.strings();
    QFileDialog dialog(parent, strings.ui("Import"), folderOf(document));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters({strings.text(reader.title()) + u" ("_s + patterns.join(u' ') + u')',
                           strings.ui("All files") + u" (*)"_s});
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace

void importAndTell(Carnet& carnet, const QStringList& paths, const DiveReader& reader) {
    Prompt& prompt = carnet.desk().prompt;
    try {
        const ImportResult result = importDives(carnet, paths, reader, ImportAlerts::Collected);
        prompt.inform(result.sentence(carnet.strings()));
    } catch (const std::exception& error) {
        prompt.alert(sentenceIn(carnet.strings(), error));
    }
}

InterchangeActions::InterchangeActions(LogbookWindow& window) : QObject(&window), _window(window) {
    setObjectName(u"interchange"_s);
    const Strings& strings = window.carnet().strings();
    chooseImport = [this](const DiveReader& reader) {
        return askWhatToImport(&_window, _window.carnet(), reader);
    };
    chooseExport = [this](const QString& suggested) {
        return askWhereToSave(&_window, _window.carnet().strings().ui("Export dives"),
                              folderOf(_window.carnet()), suggested, _window.carnet(), {});
    };
    for (const ImportItem& item : importItems) {
        auto* action = new QAction(iconNamed(item.action), strings.text(item.label), this);
        action->setObjectName(QLatin1String(item.action));
        action->setToolTip(strings.text(item.tip));
        const DiveReader* reader = diveReaderNamed(QLatin1String(item.reader));
        connect(action, &QAction::triggered, this, [this, reader] { importWith(*reader); });
        _imports << action;
    }
    _export = new QAction(strings.ui("Export…"), this);
    _export->setObjectName(u"exportDives"_s);
    connect(_export, &QAction::triggered, this, &InterchangeActions::exportDives);
    addToToolbar();
    connect(&window.carnet(), &Document::contentChanged, this, &InterchangeActions::validate);
    connect(&window.carnet(), &Document::fileChanged, this, &InterchangeActions::validate);
    validate();
}

void InterchangeActions::addToToolbar() {
    auto* bar = _window.findChild<QToolBar*>(u"tableViewToolbar"_s);
    if (!bar) return;
    QAction* search = nullptr;
    for (QAction* item : bar->actions())
        if (!search && qobject_cast<QWidgetAction*>(item)) search = item;
    for (std::size_t i = 0; i < std::size(importItems); ++i)
        if (importItems[i].isInToolbar) bar->insertAction(search, _imports[qsizetype(i)]);
}

void InterchangeActions::addTo(QMenu* file, QAction* before) {
    auto* menu = new QMenu(_window.carnet().strings().ui("Import"), file);
    menu->setObjectName(u"importMenu"_s);
    for (QAction* action : std::as_const(_imports)) menu->addAction(action);
    file->insertMenu(before, menu);
    file->insertAction(before, _export);
    file->insertSeparator(before);
}

void InterchangeActions::validate() {
    const bool isWritable = !_window.carnet().isReadOnly();
    for (QAction* action : std::as_const(_imports)) action->setEnabled(isWritable);
    _export->setEnabled(_window.carnet().count() > 0);
}

void InterchangeActions::importWith(const DiveReader& reader) {
    const QString path = chooseImport(reader);
    if (!path.isEmpty()) importFiles({path}, reader);
}

void InterchangeActions::importFiles(const QStringList& paths, const DiveReader& reader) {
    _window.storePending();
    importAndTell(_window.carnet(), paths, reader);
}

void InterchangeActions::exportDives() {
    Carnet& carnet = _window.carnet();
    _window.storePending();
    const SaveChoice choice = chooseExport(QFileInfo(carnet.displayName()).completeBaseName());
    if (choice.path.isEmpty() || !choice.format) return;
    try {
        carnet.exportTo(choice.path, QLatin1String(choice.format->typeName));
    } catch (const std::exception& error) {
        carnet.desk().prompt.alert(sentenceIn(carnet.strings(), error));
    }
}

QStringList InterchangeActions::takeDropped(const QStringList& paths) {
    QStringList others;
    for (const QString& path : paths) {
        const DiveReader* reader = diveReaderOfFile(path);
        if (reader)
            importFiles({path}, *reader);
        else
            others << path;
    }
    return others;
}

}  // namespace sargan
