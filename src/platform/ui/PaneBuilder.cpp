#include "platform/ui/PaneBuilder.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/ControlNames.h"
#include "platform/ui/PaneScroller.h"

namespace sargan {

namespace {

bool growsSideways(const LayoutItem& item) {
    return item.control && item.width == 0;
}

QLabel* plainLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QVBoxLayout* newColumn(QHBoxLayout* columns) {
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    columns->addLayout(column, 1);
    return column;
}

}  // namespace

QWidget* PaneBuilder::build(const LayoutPane& pane) {
    // A layout with a fault ends in an exception, which takes the half-built pane along.
    auto content = std::make_unique<QWidget>();
    auto* columns = new QHBoxLayout(content.get());
    columns->setSpacing(14);
    QVBoxLayout* column = nullptr;
    bool filled = false;
    for (const LayoutSection& part : pane.sections) {
        if (!column || part.startsColumn) {
            if (column && !filled) column->addStretch(1);
            column = newColumn(columns);
            filled = false;
        }
        _hasArea = false;
        QWidget* box = section(content.get(), pane, part);
        column->addWidget(box, _hasArea ? 1 : 0);
        filled = filled || _hasArea;
    }
    if (column && !filled) column->addStretch(1);
    auto* scroll = new PaneScroller(content.release(), columns);
    scroll->setObjectName(QLatin1String(pane.id));
    scroll->setAccessibleName(words(pane.label));
    return scroll;
}

QWidget* PaneBuilder::section(QWidget* parent, const LayoutPane& pane, const LayoutSection& section) {
    QWidget* box = section.title.key ? new QGroupBox(words(section.title), parent) : new QWidget(parent);
    auto* grid = new QGridLayout(box);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(6);
    if (!section.title.key) grid->setContentsMargins(0, 0, 0, 0);
    qsizetype cells = 0;
    for (const LayoutRow& line : section.rows) cells = std::max(cells, line.items.size());
    std::vector<bool> grows(std::size_t(cells), false);
    int at = 0;
    for (const LayoutRow& line : section.rows) {
        QStringList names;
        for (qsizetype i = 0; i < line.items.size(); ++i) names << spokenName(pane, section, at, i, _strings);
        row(box, grid, at++, line, int(cells), names);
        for (qsizetype i = 0; i < line.items.size(); ++i)
            if (growsSideways(line.items[i])) grows[std::size_t(i)] = true;
    }
    bool anyGrows = false;
    for (qsizetype i = 0; i < cells; ++i) {
        grid->setColumnStretch(int(i) * 2 + 1, grows[std::size_t(i)] ? 1 : 0);
        anyGrows = anyGrows || grows[std::size_t(i)];
    }
    if (!anyGrows) grid->setColumnStretch(int(cells) * 2, 1);
    return box;
}

void PaneBuilder::row(QWidget* parent, QGridLayout* grid, int at, const LayoutRow& row, int cells,
                      const QStringList& names) {
    for (int i = 0; i < int(row.items.size()); ++i) {
        const LayoutItem& item = row.items[i];
        const bool isLast = i + 1 == int(row.items.size());
        const int span = isLast && growsSideways(item) ? 2 * (cells - i) - 1 : 1;
        QLabel* label = nullptr;
        if (item.control && item.label.key) {
            label = plainLabel(words(item.label), parent);
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            if (i > 0) label->setContentsMargins(8, 0, 0, 0);
            grid->addWidget(label, at, 2 * i);
        }
        grid->addWidget(cell(parent, item, label, names[i]), at, 2 * i + 1, 1, span);
        if (label && _hasArea) grid->setAlignment(label, Qt::AlignTop);
    }
}

QWidget* PaneBuilder::cell(QWidget* parent, const LayoutItem& item, QWidget* label, const QString& name) {
    if (item.control) return controlCell(parent, item, label, name);
    if (item.action) return button(parent, item.action, item.label);
    QLabel* heading = plainLabel(words(item.label), parent);
    QPalette faint = heading->palette();
    faint.setColor(QPalette::WindowText, faint.color(QPalette::PlaceholderText));
    heading->setPalette(faint);
    return heading;
}

QWidget* PaneBuilder::controlCell(QWidget* parent, const LayoutItem& item, QWidget* label,
                                  const QString& name) {
    auto* holder = new QWidget(parent);
    auto* line = new QHBoxLayout(holder);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(4);
    ControlBinder* binder = _bind(item.control, holder);
    QWidget* widget = binder->widget();
    if (item.width > 0) binder->setCharacters(item.width);
    const bool stretches = item.width == 0 && binder->grows();
    line->addWidget(widget, stretches ? 1 : 0);
    speakAs(widget, name);
    if (auto* titled = qobject_cast<QLabel*>(label)) titled->setBuddy(widget);
    if (label) binder->addCompanion(label);
    if (item.unit.key) {
        QLabel* unit = plainLabel(words(item.unit), holder);
        line->addWidget(unit);
        binder->addCompanion(unit);
    }
    if (item.action) {
        QWidget* behind = button(holder, item.action, item.button);
        line->addWidget(behind);
        binder->addCompanion(behind);
    }
    if (!stretches) line->addStretch(1);
    _hasArea = _hasArea || widget->sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
    return holder;
}

QWidget* PaneBuilder::button(QWidget* parent, const char* name, const Message<>& label) {
    auto* made = new QPushButton(words(label), parent);
    const QString action = QLatin1String(name);
    made->setObjectName(action);
    made->setAutoDefault(false);
    QObject::connect(made, &QPushButton::clicked, made, [press = _press, action] { press(action); });
    return made;
}

}  // namespace sargan
