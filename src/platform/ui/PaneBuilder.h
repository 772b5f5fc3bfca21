#pragma once

#include <functional>

#include "platform/form/WindowLayout.h"
#include "platform/ui/ControlBinder.h"

class QGridLayout;
class QVBoxLayout;

namespace sargan {

/// Turns one pane of a layout into widgets: sections in columns, and in each section a grid in which the
/// n-th items of all rows stand below each other.
class PaneBuilder {
public:
    /// `bind` makes the widget of a control as a child of the given parent.
    using Bind = std::function<ControlBinder*(const char* control, QWidget* parent)>;
    using Press = std::function<void(const QString& action)>;

    PaneBuilder(const Strings& strings, Bind bind, Press press)
        : _strings(strings), _bind(std::move(bind)), _press(std::move(press)) {}

    /// The pane in a scroll area, which takes no room of its own while everything fits.
    QWidget* build(const LayoutPane& pane);

private:
    QWidget* section(QWidget* parent, const LayoutPane& pane, const LayoutSection& section);
    void row(QWidget* parent, QGridLayout* grid, int at, const LayoutRow& row, int cells,
             const QStringList& names);
    QWidget* cell(QWidget* parent, const LayoutItem& item, QWidget* label, const QString& name);
    QWidget* controlCell(QWidget* parent, const LayoutItem& item, QWidget* label, const QString& name);
    QWidget* button(QWidget* parent, const char* name, const Message<>& label);
    QString words(const Message<>& message) const { return message.key ? _strings.text(message) : QString(); }

    const Strings& _strings;
    Bind _bind;
    Press _press;
    bool _hasArea = false;  ///< of the section being built
};

}  // namespace sargan
