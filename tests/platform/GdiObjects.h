#pragma once

#include <windows.h>

#include <vector>

#include "platform/Handles.h"

namespace tarvik::support {

// The number of GDI objects of this process, or of another one that may be read: device contexts, bitmaps, brushes,
// fonts, pens, regions. An icon counts by its bitmaps.
int CountGdiObjects();
int CountGdiObjects(HANDLE process);

// While it lives, this process can create no GDI object: tiny bitmaps use up all of them.
class NoGdiObjects {
 public:
  NoGdiObjects();

 private:
  std::vector<BitmapHandle> bitmaps_;
};

}  // namespace tarvik::support
