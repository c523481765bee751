#pragma once

#include <windows.h>

namespace tarvik {

// A window's rectangle in client coordinates of its parent, in pixels.
inline RECT BoundsInParent(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

inline SIZE SizeOf(const RECT& bounds) {
  return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

}  // namespace tarvik
