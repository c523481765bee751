#pragma once

#include <windows.h>

namespace tarvik::support {

// The number of GDI objects of this process, or of another one that may be read: device contexts, bitmaps, brushes,
// fonts, pens, regions. An icon counts by its bitmaps.
int CountGdiObjects();
int CountGdiObjects(HANDLE process);

}  // namespace tarvik::support
