#pragma once

namespace sargan {

/// Whether there is a screen to show windows on.
bool hasDisplay();

/// The desktop program; returns when the last window is closed. `argv` as main got it.
int runDesktop(int& argc, char** argv);

}  // namespace sargan
