#pragma once

#include <cstdint>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// An image as a general reader of the formats returns it. Pixels row by row from the top.
struct ReadImage {
  int width = 0;
  int height = 0;
  int bitsPerPixel = 0;
  std::vector<Color> colors;
  std::vector<bool> transparent;  // of icons and cursors
  int fileType = 0;               // 1 icon, 2 cursor
  int word10 = 0;                 // planes, or the hot spot's x
  int word12 = 0;                 // bits per pixel, or the hot spot's y
  std::uint32_t sizeField = 0;    // bytes declared in the entry, or a bitmap's file size
};

// Read a file by its headers: start of the image, depth, rows of whole 4-byte words. Independent of the writers. Throw
// std::out_of_range if a file ends too early, std::runtime_error if it is not of that format.
ReadImage ReadIconOrCursor(const std::vector<std::uint8_t>& file);
ReadImage ReadBitmap(const std::vector<std::uint8_t>& file);

}  // namespace tarvik
