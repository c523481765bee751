#pragma once

#include <cstdint>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// An image as a general reader of the formats gives it back. Pixels row by row from the top.
struct ReadImage {
  int width = 0;
  int height = 0;
  int bitsPerPixel = 0;
  std::vector<Color> colors;
  std::vector<bool> transparent;  // of icons and cursors
  int fileType = 0;               // 1 icon, 2 cursor
  int word10 = 0;                 // planes, or the hot spot's x
  int word12 = 0;                 // bits per pixel, or the hot spot's y
  std::uint32_t sizeField = 0;    // bytes the entry declares, or a bitmap's file size
};

// Read a file by what its headers say: where the image starts, how deep it is, rows of whole 4-byte words. Know
// nothing of any writer. Throw std::out_of_range for a file that ends too early, std::runtime_error for one that is no
// such file.
ReadImage ReadIconOrCursor(const std::vector<std::uint8_t>& file);
ReadImage ReadBitmap(const std::vector<std::uint8_t>& file);

}  // namespace tarvik
