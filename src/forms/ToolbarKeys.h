#pragma once

#include <windows.h>

namespace tarvik {

// Adds keyboard control to a toolbar that is a tab stop of a dialog, the same on every system: Wine's toolbar has no
// keys of its own. While it has the focus it marks one button, at first the first one. Arrow keys, Home and End mark
// another enabled button, and Enter presses the marked one. A disabled button keeps its mark, and Enter then does
// nothing.
void AddToolbarKeys(HWND toolbar);

}  // namespace tarvik
