#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarvik::support {

// Pairs of visible controls of a window that lie over one another, by their ids: "1001 over 1002". A group box has its
// controls in it, and counts for none.
std::vector<std::string> OverlappingControls(HWND window);

// Visible list boxes whose rows are lower than the letters of their font, by their ids.
std::vector<int> ListsThatCutLetters(HWND window);

}  // namespace tarvik::support
