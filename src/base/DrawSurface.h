#pragma once

namespace tarvik {

// Something icons are drawn on: the grid picture, a capture surface, the main window. The platform knows how.
class DrawSurface {
 public:
  virtual ~DrawSurface() = default;
};

}  // namespace tarvik
