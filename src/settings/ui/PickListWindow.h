#pragma once

#include "settings/ComboController.h"
#include "settings/ui/AuxiliaryWindow.h"

namespace sargan {

class PickListView;

/// The window of one editor of pick lists, whichever it is.
class PickListWindow : public AuxiliaryWindow {
    Q_OBJECT

public:
    PickListWindow(const PickListEditorSpec& spec, Desk& desk);
    ~PickListWindow() override;

    ComboController& controller() { return _controller; }

protected:
    void build() override;
    void prepare() override;

private:
    ComboController _controller;
    QList<PickListView*> _views;
};

}  // namespace sargan
