#pragma once

#include <algorithm>

namespace tarvik {

// The size of the main window beyond what its controls need, in display pixels, and how it is distributed.
// Horizontally, the two lists of folders and files share it, and grid and icon list take all of it. Vertically, the
// grid has a fixed height, so the upper lists take all of it; the icon list shares it with them.
struct ExtraRoom {
  int across = 0;
  int upperLists = 0;
  int iconList = 0;
  friend bool operator==(const ExtraRoom&, const ExtraRoom&) = default;
};

// `width` and `height` are the excess over the needed size; values below 0 count as 0.
constexpr ExtraRoom ShareRoom(int width, int height, bool listShown) {
  const int down = std::max(height, 0);
  const int iconList = listShown ? down / 2 : 0;
  return {std::max(width, 0), down - iconList, iconList};
}

}  // namespace tarvik
