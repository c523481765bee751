#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarvik::support {

// What is wrong with the texts of a window as it stands. Each answer names the offending texts, UTF-8, and is empty
// where all is well. Texts without an access key are left out of the first two.

// Controls that another control has taken the access key from.
std::vector<std::string> TextsWithTakenKeys(HWND window);
// Items of the window's menu, and of each menu below it, that share their access key with one of the same menu.
std::vector<std::string> MenuTextsWithTakenKeys(HWND window);
// Labels, buttons and boxes that have no room for their text in their own font; hidden ones too.
std::vector<std::string> CutOffTexts(HWND window);

}  // namespace tarvik::support
