#pragma once

#include <string>

#include "base/Integer16.h"
#include "grid/GridGeometry.h"

namespace tarvik {

// What a search and the grid share; the main window owns it. A search resets it before it lists the first icon.
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
  std::string SavedDirPath;  // while a walk moves Dir1: the folder that it is put back to; otherwise empty
};

}  // namespace tarvik
