#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace tarvik::support {

// Pairs of visible controls of a window that overlap, by their ids: "1001 over 1002". A group box contains its controls
// and is ignored.
std::vector<std::string> OverlappingControls(HWND window);

// Visible controls that are not wholly inside the window, like those above.
std::vector<std::string> ControlsOutside(HWND window);

// Visible list boxes, drop-down lists and text boxes whose rows are lower than the letters of their font, by their ids.
std::vector<int> ListsThatCutLetters(HWND window);

// The choices of visible drop-down lists, and the texts of visible text boxes of one line, that are wider than the
// control shows.
std::vector<std::string> CutOffChoices(HWND window);

// The headers of a report list that are wider than their columns.
std::vector<std::string> CutOffHeaders(HWND list);

}  // namespace tarvik::support
