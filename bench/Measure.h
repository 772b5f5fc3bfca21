#pragma once

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

/// What the benchmark programs share: the best of several runs, and the process's peak memory.
namespace sargan::bench {

/// Seconds of the fastest of `runs` runs.
template <class Work>
double bestOf(int runs, Work&& work) {
    double best = 1e30;
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count());
    }
    return best;
}

/// "VmHWM" or "VmRSS" of this process, in bytes.
inline double memory(const char* what) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind(what, 0) == 0) return std::stod(line.substr(line.find(':') + 1)) * 1024;
    return 0;
}

/// Keeps the compiler from leaving out work whose result nobody uses.
template <class T>
void use(const T& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

inline void row(const char* what, double seconds, double bytes, double floor) {
    std::printf("%-44s %9.1f ms %8.0f MB/s", what, seconds * 1e3, bytes / seconds / 1e6);
    if (floor > 0) std::printf("   %5.2f x the floor", seconds / floor);
    std::printf("\n");
}

}  // namespace sargan::bench
