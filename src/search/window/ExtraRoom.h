#pragma once

#include <algorithm>

namespace tarvik {

// What the main window has beyond the size that its controls need, in display pixels, and who gets it. Across, the two
// lists of folders and files share it, and grid and icon list take all of it. Down, the grid has a fixed height, so
// that the upper lists take all of it; the icon list shares it with them.
struct ExtraRoom {
  int across = 0;
  int upperLists = 0;
  int iconList = 0;
  friend bool operator==(const ExtraRoom&, const ExtraRoom&) = default;
};

// `width` and `height` are what there is beyond the need, less than 0 counted as 0.
constexpr ExtraRoom ShareRoom(int width, int height, bool listShown) {
  const int down = std::max(height, 0);
  const int iconList = listShown ? down / 2 : 0;
  return {std::max(width, 0), down - iconList, iconList};
}

}  // namespace tarvik
