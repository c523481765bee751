#pragma once

namespace tarvik::testing {

// How many GDI objects this process has: device contexts, bitmaps, brushes, fonts, pens, regions. An icon counts by
// its bitmaps.
int CountGdiObjects();

}  // namespace tarvik::testing
