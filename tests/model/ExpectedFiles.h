#pragma once

#include <cstdint>
#include <vector>

#include "model/Disk.h"
#include "model/Picture.h"

namespace tarvik::model {

using Bytes = std::vector<std::uint8_t>;

// One icon as it is captured for a save: squares of one size.
struct Capture {
  Picture mask;
  Picture image;
  Picture composed;
};

// The icon at that size; a blank one if `look` is null.
Capture CaptureOf(const IconLook* look, int size);

struct Spot {
  int x = 0;
  int y = 0;
};

// The expected content of a saved file, byte by byte.
Bytes IconFile(const Capture& icon);
Bytes CursorFile(const Capture& icon, Spot hotSpot);
Bytes BitmapFile(const Capture& icon);

}  // namespace tarvik::model
