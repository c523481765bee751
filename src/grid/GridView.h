#pragma once

#include "base/DrawSurface.h"
#include "base/Point.h"
#include "grid/GridGeometry.h"

namespace tarvik {

// The grid's picture as a search draws icons into it and a selection draws frames. Points are in the picture's pixels.
class GridView {
 public:
  virtual ~GridView() = default;

  // Makes the picture white, on the screen too.
  virtual void Clear() = 0;
  // Sizes the picture and its scroll bar for that many icons and scrolls to the top. What was drawn stays as far as it
  // fits. A run-time error if memory is out; the picture is then as it was.
  virtual void Size(const GridGeometry& geometry, int iconCount) = 0;
  virtual int InnerHeight() const = 0;

  // What icons are drawn on. Keep puts on the screen what was drawn since.
  virtual DrawSurface& Picture() = 0;
  virtual void Keep() = 0;

  // A box outline of one pixel with these two corners: black if `shown`, otherwise white.
  virtual void DrawFrame(Point corner, Point farCorner, bool shown) = 0;
};

}  // namespace tarvik
