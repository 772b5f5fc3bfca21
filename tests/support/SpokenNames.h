#pragma once

#include <QAccessible>
#include <QtWidgets>

/// What a person hears of a window that is read aloud.
namespace spoken {

/// Of a widget itself, its label or what is written on it. A combo box is called by its value; what it is for
/// is its description.
inline QString nameOf(QWidget* widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    if (!spoken) return {};
    const bool isCombo = qobject_cast<QComboBox*>(widget);
    return spoken->text(isCombo ? QAccessible::Description : QAccessible::Name).simplified();
}

/// Whether the keyboard can come to it; parts of which the toolkit makes a control are not meant.
inline bool isControl(const QWidget* widget) {
    if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(u"qt_")) return false;
    const QWidget* parent = widget->parentWidget();
    const bool isPart = qobject_cast<const QComboBox*>(parent) ||
                        qobject_cast<const QAbstractSpinBox*>(parent) || widget->focusProxy();
    return !isPart && !qobject_cast<const QMenu*>(widget) && !qobject_cast<const QHeaderView*>(widget);
}

/// All controls of a window, on panes that do not show as well.
inline QList<QWidget*> controlsOf(const QWidget& window) {
    QList<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (widget->window() == &window && isControl(widget)) controls << widget;
    return controls;
}

/// The controls that are silent, as "QLineEdit departField"; a number or a sign by itself says nothing.
/// Labels say what is written on them.
inline QStringList namelessIn(const QWidget& window) {
    QStringList nameless;
    for (QWidget* control : controlsOf(window)) {
        const QString name = nameOf(control);
        const bool saysSomething =
            std::any_of(name.cbegin(), name.cend(), [](QChar letter) { return letter.isLetter(); });
        if (!saysSomething && !qobject_cast<const QLabel*>(control))
            nameless << QLatin1String(control->metaObject()->className()) + u' ' + control->objectName();
    }
    return nameless;
}

}  // namespace spoken
