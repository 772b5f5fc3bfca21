#pragma once

#include <QGuiApplication>
#include <ctime>
#include <initializer_list>

/// Runs the test classes of a program that lays out texts but has no windows, off screen.
inline int runFontTests(int argc, char** argv, std::initializer_list<int (*)(int, char**)> tests) {
    qputenv("TZ", "Europe/Paris");
    ::tzset();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
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
