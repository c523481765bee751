#pragma once

#include <optional>

#include "grid/GridGeometry.h"

namespace tarvik {

// The cell under a point of the grid picture.
struct HitCell {
  int index = 0;  // zero-based index of the entry that the cell belongs to
  Point frameCorner;
  friend bool operator==(const HitCell&, const HitCell&) = default;
};

// The cell at (x, y), in pixels of a picture that is `innerHeight` high; nothing for a point outside 0 to 580 by 0 to
// `innerHeight`, borders included. The right bound is the same for every icon size: at size 16 the last cells of a row
// cannot be hit. The point is rounded to whole pixels, halves to even. The picture's margin is not subtracted, and a
// cell past the end of a row belongs to the first entry of the next row, but its frame is drawn at the point
// (deliberate: oddities 27). A cell need not hold an icon.
std::optional<HitCell> CellAt(const GridGeometry& geometry, double x, double y, int innerHeight);

}  // namespace tarvik
