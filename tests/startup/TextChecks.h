#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarvik::support {

// Checks of the texts of a window in its current state. Each returns the offending texts, UTF-8, and is empty if there
// are none. The first two ignore texts without an access key.

// Controls whose access key is already used by another control.
std::vector<std::string> TextsWithTakenKeys(HWND window);
// Items of the window's menu, and of each menu below it, that share their access key with one of the same menu.
std::vector<std::string> MenuTextsWithTakenKeys(HWND window);
// Labels, buttons and boxes that are too small for their text in their own font; hidden ones too.
std::vector<std::string> CutOffTexts(HWND window);

}  // namespace tarvik::support
