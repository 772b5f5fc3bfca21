#pragma once

#include <QtTest>
#include <QtWidgets>

#include "settings/SettingsBench.h"

int runPickListWindowTest(int argc, char** argv);
int runPreferencesWindowTest(int argc, char** argv);
int runRadioButtonsTest(int argc, char** argv);

namespace settingsui {

template <typename W>
W* find(const QWidget& window, const char* name) {
    auto* widget = window.findChild<W*>(QString::fromUtf8(name));
    if (!widget) throw std::runtime_error(std::string("no widget ") + name);
    return widget;
}

inline void click(const QWidget& window, const char* button) {
    QTest::mouseClick(find<QPushButton>(window, button), Qt::LeftButton);
}

inline void type(const QWidget& window, const char* field, const QString& text) {
    auto* edit = find<QLineEdit>(window, field);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

}  // namespace settingsui
