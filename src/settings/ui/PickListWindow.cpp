#include "settings/ui/PickListWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>

#include "settings/ui/PickListView.h"

namespace sargan {

PickListWindow::PickListWindow(const PickListEditorSpec& spec, Desk& desk)
    : AuxiliaryWindow(desk, QLatin1String(spec.frameName)), _controller(spec, desk) {
    setObjectName(QLatin1String(spec.layout));
    build();
    if (!restorePlace()) resize(320 * int(spec.lists.size()), 420);
}

PickListWindow::~PickListWindow() {
    delete takeCentralWidget();
}

void PickListWindow::build() {
    const PickListEditorSpec& spec = _controller.spec();
    const Strings& strings = desk().strings;
    setWindowTitle(strings.text(spec.title));
    _views.clear();
    auto* content = new QWidget(this);
    auto* columns = new QHBoxLayout(content);
    for (int list = 0; list < int(spec.lists.size()); ++list) {
        auto* view = new PickListView(_controller, list, content);
        _views << view;
        if (spec.lists.size() == 1) {
            columns->addWidget(view);
            continue;
        }
        auto* box = new QGroupBox(strings.text(spec.lists[std::size_t(list)].title), content);
        auto* inside = new QVBoxLayout(box);
        inside->addWidget(view);
        columns->addWidget(box);
    }
    delete takeCentralWidget();
    setCentralWidget(content);
    if (isVisible()) content->show();
}

void PickListWindow::prepare() {
    _controller.prepare();
    for (PickListView* view : std::as_const(_views)) view->reload();
    _views.first()->takeFocus();
}

}  // namespace sargan
