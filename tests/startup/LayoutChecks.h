#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarvik::support {

// Pairs of visible controls of a window that overlap, by their ids: "1001 over 1002". A group box contains its controls
// and is ignored.
std::vector<std::string> OverlappingControls(HWND window);

// Visible list boxes whose rows are lower than the letters of their font, by their ids.
std::vector<int> ListsThatCutLetters(HWND window);

}  // namespace tarvik::support
