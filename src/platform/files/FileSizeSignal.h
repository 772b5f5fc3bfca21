#pragma once

#include <csignal>

namespace sargan {

/// While it lives, a write beyond the process's file size limit fails with EFBIG in this thread and does
/// not also end the program with a signal.
class FileSizeSignalHeld {
public:
    FileSizeSignalHeld();
    ~FileSizeSignalHeld();
    FileSizeSignalHeld(const FileSizeSignalHeld&) = delete;
    FileSizeSignalHeld& operator=(const FileSizeSignalHeld&) = delete;

private:
    sigset_t _before;
    bool _changed;
};

}  // namespace sargan
