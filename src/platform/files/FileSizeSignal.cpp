#include "platform/files/FileSizeSignal.h"

#include <ctime>

namespace sargan {

namespace {

sigset_t onlyFileSizeSignal() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGXFSZ);
    return set;
}

}  // namespace

FileSizeSignalHeld::FileSizeSignalHeld() {
    const sigset_t held = onlyFileSizeSignal();
    _changed = pthread_sigmask(SIG_BLOCK, &held, &_before) == 0 && !sigismember(&_before, SIGXFSZ);
}

FileSizeSignalHeld::~FileSizeSignalHeld() {
    if (!_changed) return;
    // The one that a refused write left waiting would end the program as soon as it is let through.
    const sigset_t held = onlyFileSizeSignal();
    const timespec atOnce{};
    while (sigtimedwait(&held, nullptr, &atOnce) == SIGXFSZ) {
    }
    pthread_sigmask(SIG_SETMASK, &_before, nullptr);
}

}  // namespace sargan
