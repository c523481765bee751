#pragma once

#include <windows.h>

namespace tarvik::support {

// How many GDI objects this process, or another one that may be read, has: device contexts, bitmaps, brushes, fonts,
// pens, regions. An icon counts by its bitmaps.
int CountGdiObjects();
int CountGdiObjects(HANDLE process);

}  // namespace tarvik::support
