#pragma once

#include <QObject>
#include <map>

#include "app/MyDocumentController.h"

namespace sargan {

class DocumentWindow;

/// The window of every open document: made when the document opens, gone before the document goes.
class DocumentWindows : public QObject {
    Q_OBJECT

public:
    explicit DocumentWindows(MyDocumentController& controller);
    ~DocumentWindows() override;

    DocumentWindow* windowOf(const Document* document) const;
    /// In the order in which the documents were opened.
    std::vector<DocumentWindow*> all() const;
    /// A new window in place of each, where it was and with what was open in it: for another language. What was
    /// typed is stored first.
    void remakeAll();

Q_SIGNALS:
    /// Before the window is shown for the first time.
    void windowMade(sargan::DocumentWindow* window);
    void windowGone();

private:
    void open(Document* document);
    void remove(Document* document);
    void remake(Document* document);

    MyDocumentController& _controller;
    std::map<const Document*, std::unique_ptr<DocumentWindow>> _windows;
};

}  // namespace sargan
