#pragma once

#include <QWidget>

#include "platform/ui/ControlBinder.h"
#include "settings/ComboController.h"

class QListView;
class QPushButton;
class QStringListModel;

namespace sargan {

/// One pick list on screen: its entries, a field for a new one, the buttons and the count.
class PickListView : public QWidget {
    Q_OBJECT

public:
    PickListView(ComboController& controller, int list, QWidget* parent);
    ~PickListView() override;

    /// The entries as they are in memory, nothing selected.
    void reload();
    void takeFocus();

private:
    void build();
    QWidget* entryRow();
    QWidget* countRow();
    QPushButton* button(const char* action, const Message<>& words);
    void selectionChanged();
    void add();
    void remove();
    const EditedList& edited() const { return _controller.spec().lists[std::size_t(_list)]; }
    std::unique_ptr<ControlBinder> bind(const char* control, QWidget* parent);

    ComboController& _controller;
    int _list;
    FormChoosers _choosers;
    QListView* _table = nullptr;
    QStringListModel* _entries = nullptr;
    QPushButton* _delete = nullptr;
    std::unique_ptr<ControlBinder> _entry;
    std::unique_ptr<ControlBinder> _count;
};

}  // namespace sargan
