#include "app/DocumentSaving.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include "interchange/Formats.h"
#include "platform/document/Sentences.h"

namespace sargan {

using namespace Qt::StringLiterals;

namespace {

QStringList diveFilePatterns() {
    QStringList patterns;
    for (const DiveReader* reader : diveReaders())
        for (const QString& suffix : reader->suffixes())
            if (!patterns.contains(u"*."_s + suffix)) patterns << u"*."_s + suffix;
    return patterns;
}

QString documentFilters(const MyDocumentController& controller) {
    QStringList patterns;
    for (const DocumentKind& kind : controller.kinds().all())
        patterns << u"*."_s + QLatin1String(kind.extension);
    const Strings& strings = controller.desk().strings;
    return strings.ui("Documents") + u" ("_s + patterns.join(u' ') + u");;"_s +
           strings.ui("Dives from other programs") + u" ("_s + diveFilePatterns().join(u' ') + u");;"_s +
           strings.ui("All files") + u" (*)"_s;
}

QString folderToStart(const MyDocumentController& controller) {
    const QStringList recent = controller.recentDocuments().value_or(QStringList());
    const QString folder = recent.isEmpty() ? QString() : QFileInfo(recent.first()).absolutePath();
    return QFileInfo(folder).isDir() ? folder
                                     : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

SaveChoice chooseWhereToSave(const Document& document, const QString& suggested,
                             const MyDocumentController& controller) {
    const Strings& strings = controller.desk().strings;
    const QStringList own{u"*."_s + QLatin1String(document.kind().extension),
                          strings.ui("All files") + u" (*)"_s};
    return askWhereToSave(
        QApplication::activeWindow(), strings.ui("Save As"),
        document.path().isEmpty() ? folderToStart(controller) : QFileInfo(document.path()).absolutePath(),
        suggested, document, own);
}

}  // namespace

FileChoosers desktopFileChoosers(const MyDocumentController& controller) {
    FileChoosers choosers;
    choosers.open = [&controller] {
        return QFileDialog::getOpenFileNames(QApplication::activeWindow(),
                                             controller.desk().strings.ui("Open"), folderToStart(controller),
                                             documentFilters(controller));
    };
    choosers.save = [&controller](const Document& document, const QString& suggested) {
        return chooseWhereToSave(document, suggested, controller);
    };
    return choosers;
}

bool DocumentSaving::attempt(Document& document, const std::function<void()>& write) {
    try {
        write();
        return true;
    } catch (const SaveError& error) {
        if (error.reason() == SaveProblem::ChangedOnDisk) return askAboutChangedFile(document);
        _controller.desk().prompt.alert(sentenceIn(strings(), error));
    } catch (const std::exception& error) {
        _controller.desk().prompt.alert(sentenceIn(strings(), error));
    }
    return false;
}

bool DocumentSaving::save(Document& document) {
    if (document.path().isEmpty() || document.isReadOnly()) return saveAs(document);
    return attempt(document, [&document] { document.save(); });
}

bool DocumentSaving::askAboutChangedFile(Document& document) {
    const QString question = strings().text(
        Message<QString>{
            "Interface",
            "“%@” was changed by another program since it was opened. Overwrite that version, or save under "
            "another name?",
            "“%@” was changed by another program since it was opened. Overwrite that version, or save under "
            "another name?"},
        document.displayName());
    const int answer = _controller.desk().prompt.ask(
        question, {strings().ui("Overwrite"), strings().ui("Save As…"), cancel()});
    if (answer == 0) return attempt(document, [&document] { document.save(true); });
    return answer == 1 && saveAs(document);
}

bool DocumentSaving::isOpenElsewhere(const Document& document, const QString& path) const {
    const QFileInfo wanted(path);
    for (const auto& open : _controller.documents())
        if (open.get() != &document && !open->path().isEmpty() && QFileInfo(open->path()) == wanted)
            return true;
    return false;
}

bool DocumentSaving::saveAs(Document& document) {
    const QString extension = u'.' + QLatin1String(document.kind().extension);
    const QString name = document.displayName();
    const SaveChoice choice = _choosers.save(document, name.endsWith(extension) ? name : name + extension);
    const QString& path = choice.path;
    if (path.isEmpty()) return false;
    if (isOpenElsewhere(document, path)) {
        _controller.desk().prompt.alert(strings().text(
            Message<QString>{"Interface", "“%@” is open in another window, so it was not replaced.",
                             "“%@” is open in another window, so it was not replaced."},
            QFileInfo(path).fileName()));
        return false;
    }
    if (choice.format) return exportAs(document, choice);
    if (!attempt(document, [&] { document.saveAs(path); })) return false;
    _controller.noteRecentDocument(document.path());
    return true;
}

/// The document stays as it is, edited mark and all: the other format holds only a part of it.
bool DocumentSaving::exportAs(Document& document, const SaveChoice& choice) {
    attempt(document, [&] { document.exportTo(choice.path, QLatin1String(choice.format->typeName)); });
    return false;
}

void DocumentSaving::revert(Document& document) {
    if (document.path().isEmpty()) return;
    const QString question =
        strings().text(Message<QString>{"Interface", "Give up the changes in “%@” and read the file again?",
                                        "Give up the changes in “%@” and read the file again?"},
                       document.displayName());
    if (_controller.desk().prompt.ask(question, {strings().ui("Revert"), cancel()}) != 0) return;
    attempt(document, [&document] { document.revert(); });
}

bool DocumentSaving::mayClose(Document& document) {
    if (!document.isEdited()) return true;
    const QString question = strings().text(
        Message<QString>{"Interface", "Save the changes in “%@”?", "Save the changes in “%@”?"},
        document.displayName());
    const int answer =
        _controller.desk().prompt.ask(question, {strings().ui("Save"), strings().ui("Don’t save"), cancel()});
    return answer == 0 ? save(document) : answer == 1;
}

}  // namespace sargan
