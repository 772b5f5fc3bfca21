#pragma once

#include <QApplication>
#include <ctime>
#include <initializer_list>

/// Runs the test classes of a program that has windows, off screen unless another platform was chosen, and
/// in the time zone that the golden files tell local time in.
inline int runGuiTests(int argc, char** argv, std::initializer_list<int (*)(int, char**)> tests) {
    qputenv("TZ", "Europe/Paris");
    ::tzset();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    int failed = 0;
    for (const auto run : tests) {
        try {
            failed += run(argc, argv);
        } catch (...) {
            // QtTest has reported it and throws it on; without this its crash handler would print for ever.
            ++failed;
        }
    }
    return failed > 0 ? 1 : 0;
}
