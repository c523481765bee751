#pragma once

#include <windows.h>

#include "platform/Surface.h"

namespace tarvik {

// Replaces the clipboard's content with a copy of the picture, as a bitmap that every program can read. `owner` is
// the window that owns the content from then on, or null. Where another program holds the clipboard open, tries
// again for a tenth of a second; false where it still does, or where there is no memory.
bool CopyToClipboard(const Surface& picture, HWND owner);

}  // namespace tarvik
