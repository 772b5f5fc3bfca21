#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

#include "calculators/ui/CalculatorWindows.h"

/// The real windows on a desk of their own, worked by keys and clicks.
class WindowBench {
public:
    explicit WindowBench(sargan::Strings::Language language = sargan::Strings::Language::English)
        : strings(language) {}

    sargan::CalculatorWindow& open(const char* name) {
        window = windows.display(QString::fromLatin1(name));
        if (!window) throw std::runtime_error(std::string("no calculator ") + name);
        if (!QTest::qWaitForWindowActive(window)) throw std::runtime_error("the window does not come up");
        return *window;
    }
    template <typename Widget>
    Widget* find(const char* name) const {
        auto* widget = window->findChild<Widget*>(QString::fromLatin1(name));
        if (!widget) throw std::runtime_error(std::string("no widget ") + name);
        return widget;
    }
    QString shown(const char* label) const { return find<QLabel>(label)->text(); }
    QString typed(const char* field) const { return find<QLineEdit>(field)->text(); }

    void type(const char* field, const QString& text) {
        auto* edit = find<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    /// An item of a menu, or of the radio buttons in its stead.
    void choose(const char* name, int item) {
        if (auto* combo = window->findChild<QComboBox*>(QString::fromLatin1(name))) {
            combo->setFocus();
            QTest::keyClick(combo, Qt::Key_Home);
            for (int i = 0; i < item; ++i) QTest::keyClick(combo, Qt::Key_Down);
            return;
        }
        find<QWidget>(name)->findChildren<QRadioButton*>().at(item)->click();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, key, modifiers);
    }

    sargan::ScriptedPrompt prompt;
    sargan::UserDefaults defaults;
    sargan::Strings strings;
    sargan::NotificationCenter notifications;
    sargan::PickLists pickLists{defaults};
    sargan::Desk desk{prompt, defaults, strings, notifications, pickLists, sargan::Clock(), sargan::Log()};
    sargan::CalculatorWindows windows{desk};
    sargan::CalculatorWindow* window = nullptr;
};
