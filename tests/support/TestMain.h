#pragma once

#include <ctime>
#include <initializer_list>

#include <QCoreApplication>

/// Runs the test classes of a program one after the other, in the time zone that the golden files tell
/// local time in. Answers the program's exit status.
inline int runTests(int argc, char** argv, std::initializer_list<int (*)(int, char**)> tests) {
    qputenv("TZ", "Europe/Paris");
    ::tzset();
    const QCoreApplication application(argc, argv);
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
