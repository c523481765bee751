#pragma once

#include "base/DrawSurface.h"
#include "base/Point.h"
#include "grid/GridGeometry.h"

namespace tarvik {

// The interface of the grid's picture, into which a search draws icons and a selection draws frames. Points are in the
// picture's pixels.
class GridView {
 public:
  virtual ~GridView() = default;

  // Makes the picture white, on the screen too.
  virtual void Clear() = 0;
  // Sizes the picture and its scroll bar for that many icons and scrolls to the top. The old content is kept as far as
  // it fits. Throws a run-time error if memory runs out; the picture is then unchanged.
  virtual void Size(const GridGeometry& geometry, int iconCount) = 0;
  virtual int InnerHeight() const = 0;

  // The surface that icons are drawn on. Keep shows on the screen what was drawn since.
  virtual DrawSurface& Picture() = 0;
  virtual void Keep() = 0;

  // A box outline of one pixel with these two corners: black if `shown`, otherwise white.
  virtual void DrawFrame(Point corner, Point farCorner, bool shown) = 0;
};

}  // namespace tarvik
