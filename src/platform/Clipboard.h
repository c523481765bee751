#pragma once

#include <windows.h>

#include "platform/Surface.h"

namespace tarvik {

// Replaces the clipboard's content with a copy of the picture, as a bitmap that every program can read. `owner` is the
// window that owns the content from then on, or null. If another program has the clipboard open, retries for a second;
// returns false if it is still open then, or if memory runs out.
bool CopyToClipboard(const Surface& picture, HWND owner);

}  // namespace tarvik
