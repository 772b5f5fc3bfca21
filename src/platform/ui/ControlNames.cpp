#include "platform/ui/ControlNames.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>

namespace sargan {

namespace {

QString wordsOf(const Message<>& message, const Strings& strings) {
    return message.key ? strings.text(message) : QString();
}

/// A row of headings makes the rows below it a table.
bool isHeadings(const LayoutRow& row) {
    return row.items.size() > 1 && std::ranges::none_of(row.items, [](const LayoutItem& item) {
               return item.control || item.action;
           });
}

QString headingAbove(const LayoutSection& section, qsizetype row, qsizetype item, const Strings& strings) {
    for (qsizetype above = row - 1; above >= 0; --above)
        if (isHeadings(section.rows[above]))
            return item < section.rows[above].items.size()
                       ? wordsOf(section.rows[above].items[item].label, strings)
                       : QString();
    return {};
}

/// The label of the item itself, or of the nearest one before it.
QString labelBefore(const LayoutRow& row, qsizetype item, const Strings& strings) {
    for (qsizetype at = item; at >= 0; --at)
        if (row.items[at].control && row.items[at].label.key) return wordsOf(row.items[at].label, strings);
    return {};
}

bool saysSomething(const QString& label) {
    return std::ranges::any_of(label, [](QChar letter) { return letter.isLetter(); });
}

}  // namespace

QString spokenName(const LayoutPane& pane, const LayoutSection& section, qsizetype row, qsizetype item,
                   const Strings& strings) {
    const QString title = section.title.key ? wordsOf(section.title, strings) : wordsOf(pane.label, strings);
    const QString label = labelBefore(section.rows[row], item, strings);
    const QString heading = headingAbove(section, row, item, strings);
    if (heading.isEmpty() && saysSomething(label)) return label;
    QStringList parts{title, label, heading};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

void speakAs(QWidget* control, const QString& name) {
    // Captions and combo boxes are called by what they show; what that is comes second.
    if (qobject_cast<QLabel*>(control) || qobject_cast<QComboBox*>(control))
        control->setAccessibleDescription(name);
    else
        control->setAccessibleName(name);
    const auto* combo = qobject_cast<QComboBox*>(control);
    if (combo && combo->isEditable()) combo->lineEdit()->setAccessibleName(name);
}

}  // namespace sargan
