#include "settings/ui/PickListView.h"

#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QShortcut>
#include <QStringListModel>
#include <QVBoxLayout>

namespace sargan {

using namespace Qt::StringLiterals;

PickListView::PickListView(ComboController& controller, int list, QWidget* parent)
    : QWidget(parent), _controller(controller), _list(list) {
    build();
    Form& form = controller.form();
    connect(&form, &Form::changed, this, [this](int control) {
        for (const auto* binder : {&_entry, &_count})
            if ((*binder)->control() == control) (*binder)->refresh();
    });
    connect(&controller.desk().pickLists, &PickLists::changed, this, [this](const QString& key) {
        if (key == QLatin1String(edited().key)) reload();
    });
    reload();
}

PickListView::~PickListView() {
    for (const auto* binder : {&_entry, &_count}) (*binder)->widget()->disconnect(binder->get());
}

void PickListView::build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    _entries = new QStringListModel(this);
    _table = new QListView(this);
    _table->setObjectName(QLatin1String(edited().key) + u" table"_s);
    _table->setModel(_entries);
    _table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    _table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    _table->setAlternatingRowColors(true);
    _table->setUniformItemSizes(true);
    _table->setAccessibleName(_controller.desk().strings.text(edited().title));
    connect(_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PickListView::selectionChanged);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, _table);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &PickListView::remove);
    column->addWidget(entryRow());
    column->addWidget(_table, 1);
    column->addWidget(countRow());
}

QWidget* PickListView::entryRow() {
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    _entry = bind(edited().entryField, row);
    auto* field = qobject_cast<QLineEdit*>(_entry->widget());
    field->setPlaceholderText(_controller.desk().strings.ui("New entry"));
    field->setAccessibleName(_controller.desk().strings.ui("New entry"));
    connect(field, &QLineEdit::returnPressed, this, &PickListView::add);
    line->addWidget(field, 1);
    QPushButton* adding = button(edited().addAction, {"Main", "Add"});
    connect(adding, &QPushButton::clicked, this, &PickListView::add);
    line->addWidget(adding);
    return row;
}

QWidget* PickListView::countRow() {
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    _count = bind(edited().countField, row);
    _delete = button(edited().deleteAction, {"Main", "Delete"});
    connect(_delete, &QPushButton::clicked, this, &PickListView::remove);
    line->addWidget(_count->widget(), 1);
    line->addWidget(_delete);
    return row;
}

std::unique_ptr<ControlBinder> PickListView::bind(const char* control, QWidget* parent) {
    Form& form = _controller.form();
    return makeBinder(form, form[ControlName{control}], _controller.desk(), _choosers, parent);
}

QPushButton* PickListView::button(const char* action, const Message<>& words) {
    auto* made = new QPushButton(_controller.desk().strings.text(words), this);
    made->setObjectName(QLatin1String(action));
    made->setAutoDefault(false);
    return made;
}

void PickListView::reload() {
    _entries->setStringList(_controller.entries(_list));
    _controller.showCount(_list);
    selectionChanged();
}

void PickListView::takeFocus() {
    _entry->takeFocus();
}

void PickListView::selectionChanged() {
    QList<qsizetype> rows;
    const QModelIndexList selected = _table->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected) rows << index.row();
    std::sort(rows.begin(), rows.end());
    _controller.select(_list, rows);
    _delete->setEnabled(!rows.isEmpty());
}

void PickListView::add() {
    const QString text = _controller.form().text(ControlName{edited().entryField});
    _controller.add(_list);
    const qsizetype row = _controller.entries(_list).indexOf(text);
    if (row >= 0) _table->scrollTo(_entries->index(int(row)));
    takeFocus();
}

void PickListView::remove() {
    _controller.remove(_list);
}

}  // namespace sargan
