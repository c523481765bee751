#pragma once

#include <windows.h>

namespace tarvik {

// Has a toolbar that is a tab stop of a dialog worked by the keyboard, alike on every system: Wine's toolbar has no
// keys of its own. With the focus it marks one button, the first at first. Arrow keys, Home and End mark another one
// that can be pressed, and Enter presses the marked one. A button that is disabled keeps its mark, and Enter then does
// nothing.
void AddToolbarKeys(HWND toolbar);

}  // namespace tarvik
