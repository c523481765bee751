#pragma once

namespace tarvik {

// A surface that icons are drawn on: the grid picture, a capture surface, the main window. Implemented by the platform
// layer.
class DrawSurface {
 public:
  virtual ~DrawSurface() = default;
};

}  // namespace tarvik
