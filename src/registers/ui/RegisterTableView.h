#pragma once

#include "platform/ui/SourceTableView.h"
#include "registers/Register.h"

namespace sargan {

/// The table of a register. Where the register's rows can be dragged, a drop of rows puts the last record
/// into the list once more.
class RegisterTableView : public SourceTableView {
    Q_OBJECT

public:
    RegisterTableView(Document& document, Register& shown, const QString& name);

protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool takes(const QMimeData& dragged) const;

    Register& _register;
};

}  // namespace sargan
