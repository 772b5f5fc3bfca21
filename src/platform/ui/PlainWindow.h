#pragma once

#include "platform/document/PlainDocument.h"
#include "platform/ui/DocumentWindow.h"

namespace sargan {

/// The window of a document whose register this program does not have yet: its values, to look at.
class PlainWindow : public DocumentWindow {
    Q_OBJECT

public:
    explicit PlainWindow(PlainDocument& document);

    void selectEverything() override;
    QString copiedText() const override;

private:
    void showCount();

    PlainDocument& _plain;
    QTableView* _table;
    QLabel* _count;
};

/// The selected rows of a table as lines of tab-separated texts.
QString selectedText(const QTableView& table);

}  // namespace sargan
