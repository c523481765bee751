#pragma once

namespace tarvik {

// A position in a picture, in pixels from its top-left corner.
struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

}  // namespace tarvik
