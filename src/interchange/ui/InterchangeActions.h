#pragma once

#include <QObject>
#include <functional>

#include "interchange/ui/SaveChoice.h"

class QAction;
class QMenu;

namespace sargan {

class Carnet;
class DiveReader;
class LogbookWindow;

/// Imports the dives of all files, which are of the reader's format, and tells the person how it went.
void importAndTell(Carnet& carnet, const QStringList& paths, const DiveReader& reader);

/// Import and export of a logbook's window: the items of its toolbar and of the File menu, and files dropped
/// on it.
class InterchangeActions : public QObject {
    Q_OBJECT

public:
    explicit InterchangeActions(LogbookWindow& window);

    /// Import and export into the File menu, in front of one of its actions.
    void addTo(QMenu* file, QAction* before);

    void importWith(const DiveReader& reader);
    void exportDives();
    /// Imports those files that are of a format that can be read; answers the others.
    QStringList takeDropped(const QStringList& paths);

    /// How files are picked; replaced in tests. Empty when the person gave up.
    std::function<QString(const DiveReader&)> chooseImport;
    std::function<SaveChoice(const QString& suggested)> chooseExport;

private:
    void addToToolbar();
    void importFiles(const QStringList& paths, const DiveReader& reader);
    void validate();

    LogbookWindow& _window;
    QList<QAction*> _imports;
    QAction* _export;
};

}  // namespace sargan
