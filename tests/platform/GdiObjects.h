#pragma once

namespace tarvik::testing {

// How many GDI objects this process has: device contexts, bitmaps, brushes, fonts, pens, regions. An icon counts by
// its bitmaps.
int CountGdiObjects();

// The same of any process, by a handle to it that may ask and read; and how many kernel objects it has open. 0 where
// that cannot be had.
int CountGdiObjects(void* process);
int CountHandles(void* process);

}  // namespace tarvik::testing
