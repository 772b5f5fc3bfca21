#pragma once

#include <functional>

#include "app/MyDocumentController.h"
#include "interchange/ui/SaveChoice.h"

namespace sargan {

/// How files are picked; replaced in tests.
struct FileChoosers {
    /// Files to open; empty when the person gave up.
    std::function<QStringList()> open;
    /// Where to save a document and as what, `suggested` first offered.
    std::function<SaveChoice(const Document& document, const QString& suggested)> save;
};

/// The file dialogs of the desktop.
FileChoosers desktopFileChoosers(const MyDocumentController& controller);

/// Saving with all its questions. What was typed is in the document before any of this is called.
class DocumentSaving {
public:
    DocumentSaving(MyDocumentController& controller, FileChoosers& choosers)
        : _controller(controller), _choosers(choosers) {}

    /// Answers whether the document is saved now.
    bool save(Document& document);
    bool saveAs(Document& document);
    void revert(Document& document);
    /// Whether the document may be closed: it is not edited, or the person saved it or gave it up.
    bool mayClose(Document& document);

private:
    bool attempt(Document& document, const std::function<void()>& write);
    bool askAboutChangedFile(Document& document);
    bool exportAs(Document& document, const SaveChoice& choice);
    bool isOpenElsewhere(const Document& document, const QString& path) const;
    const Strings& strings() const { return _controller.desk().strings; }
    QString cancel() const { return strings().text({"Main", "Cancel", "Cancel"}); }

    MyDocumentController& _controller;
    FileChoosers& _choosers;
};

}  // namespace sargan
