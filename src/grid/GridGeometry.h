#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "base/Point.h"

namespace tarvik {

// The grid of one icon size: all lengths in pixels.
// NOLINTBEGIN(readability-identifier-naming): see Names and ids in docs/design.md
struct GridGeometry {
  std::string_view Caption;  // the text of the size list
  int IconSize = 0;          // side of a drawn icon
  int CellPitch = 0;         // from one icon's corner to the next
  int FrameExtent = 0;       // a selection frame's side, measured from corner to corner
  int FirstFrameExtent = 0;  // the far corner of the frame drawn around the first icon right after a search
  int Columns = 0;           // icons in a row
  int MaxLimit = 0;          // the highest limit that a search can have
  int DefaultLimit = 0;      // the limit unless the user changes it
};
// NOLINTEND(readability-identifier-naming)

// The four sizes, in the order of the size list.
inline constexpr std::array<GridGeometry, 4> gridGeometries{{
    {"16 x 16", 16, 22, 20, 21, 31, 4000, 400},
    {"32 x 32", 32, 38, 36, 37, 15, 2400, 300},
    {"48 x 48", 48, 54, 52, 53, 10, 1800, 150},
    {"64 x 64", 64, 70, 68, 69, 8, 1200, 100},
}};

inline constexpr int gridMargin = 3;            // from the picture's edge to the first icon
inline constexpr int frameMargin = 1;           // from the picture's edge to the first icon's frame
inline constexpr int viewportHeight = 190;      // inner height of the viewport
inline constexpr int rowsWithoutScrolling = 5;  // this many rows or fewer do not scroll

// The width that a grid of `geometry` fills, margin included.
constexpr int GridWidth(const GridGeometry& geometry) {
  return gridMargin + geometry.Columns * geometry.CellPitch;
}

// The width of the widest of the four grids.
constexpr int WidestGrid() {
  int widest = 0;
  for (const GridGeometry& geometry : gridGeometries) widest = std::max(widest, GridWidth(geometry));
  return widest;
}

// How many rows `iconCount` icons need.
constexpr int GridRows(const GridGeometry& geometry, int iconCount) {
  return (iconCount + geometry.Columns - 1) / geometry.Columns;
}

// The picture that holds `iconCount` icons, and how far it scrolls in the viewport.
struct GridExtent {
  int height = viewportHeight;
  bool scrolls = false;
  int scrollMaximum = 0;
  friend bool operator==(const GridExtent&, const GridExtent&) = default;
};

// With six rows or more the scroll range follows the rows, also below 0 (deliberate: oddities 25).
constexpr GridExtent ExtentOf(const GridGeometry& geometry, int iconCount) {
  const int rows = GridRows(geometry, iconCount);
  if (rows <= rowsWithoutScrolling) return {};
  const int height = geometry.CellPitch * rows;
  return {height, true, height - viewportHeight};
}

// The top-left corner of the icon of the entry with the zero-based `index`.
constexpr Point IconCorner(const GridGeometry& geometry, int index) {
  return {gridMargin + index % geometry.Columns * geometry.CellPitch,
          gridMargin + index / geometry.Columns * geometry.CellPitch};
}

// The top-left corner of that entry's frame.
constexpr Point FrameCorner(const GridGeometry& geometry, int index) {
  return {frameMargin + index % geometry.Columns * geometry.CellPitch,
          frameMargin + index / geometry.Columns * geometry.CellPitch};
}

}  // namespace tarvik
