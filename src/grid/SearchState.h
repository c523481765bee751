#pragma once

#include <string>

#include "base/Integer16.h"
#include "grid/GridGeometry.h"

namespace tarvik {

// State shared by a search, the grid and the selection; the main window owns it. A search resets IconCount when it
// counts, the number and the cell when it lists, and frame and current entry when it has listed; a refused search
// resets only IconCount. Geometry is the user's choice and is not changed by a search.
// NOLINTBEGIN(readability-identifier-naming): see Names and ids in docs/design.md
struct SearchState {
  Integer16 IconCount;     // icons that the counting pass found
  int NextIconNumber = 1;  // the number that the next entry gets
  Integer16 CellX = 3;     // where the next icon is drawn, in grid pixels
  Integer16 CellY = 3;
  Integer16 CurrentIndex;  // zero-based index of the entry last clicked
  Integer16 FrameX = 1;    // top-left corner of the current entry's frame
  Integer16 FrameY = 1;
  bool IsSearching = false;
  bool IsAnimatedFile = false;
  GridGeometry Geometry = gridGeometries[1];
  std::string SavedDirPath;  // while a walk moves Dir1: the folder that is restored afterwards; otherwise empty
};
// NOLINTEND(readability-identifier-naming)

}  // namespace tarvik
