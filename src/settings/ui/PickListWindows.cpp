#include "settings/ui/PickListWindows.h"

#include <QMenu>

namespace sargan {

PickListWindow& PickListWindows::show(const PickListEditorSpec& spec) {
    auto& window = _windows[&spec];
    if (!window) window = std::make_unique<PickListWindow>(spec, _desk);
    window->bringToFront();
    return *window;
}

PickListWindow* PickListWindows::show(QStringView name) {
    const PickListEditorSpec* spec = findPickListEditor(name);
    return spec ? &show(*spec) : nullptr;
}

void PickListWindows::fill(QMenu* menu) {
    for (const PickListEditorSpec& spec : pickListEditors()) {
        QAction* action = menu->addAction(_desk.strings.text(spec.title));
        action->setObjectName(QLatin1String(spec.menuAction));
        QObject::connect(action, &QAction::triggered, menu, [this, &spec] { show(spec); });
    }
}

}  // namespace sargan
