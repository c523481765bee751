#include "export/SeenPixels.h"

#include <algorithm>

namespace tarvik {

using support::TestRaster;

namespace {

constexpr int longRowSize = 64;             // the size whose 1-bit rows are two bytes too long
constexpr std::size_t declaredPlane = 512;  // the bytes that readers expect for one 1-bit picture of that size

}  // namespace

std::vector<bool> WhitePixels(const TestRaster& raster) {
  std::vector<bool> isWhite;
  for (const Color color : raster.Pixels()) isWhite.push_back(color == white);
  return isWhite;
}

std::vector<bool> TenByteRows(const std::vector<const TestRaster*>& pictures) {
  std::vector<bool> bits;
  for (const TestRaster* picture : pictures) {
    for (int y = 63; y >= 0; --y) {
      for (int x = 0; x < 80; ++x) bits.push_back(x < 64 && picture->Pixel(x, y) == white);
    }
  }
  return bits;
}

std::vector<bool> SeenInEightByteRows(const std::vector<bool>& bits, std::size_t firstByte) {
  std::vector<bool> seen;
  for (std::size_t y = 0; y < 64; ++y) {
    for (std::size_t x = 0; x < 64; ++x) seen.push_back(bits[firstByte * 8 + (63 - y) * 64 + x]);
  }
  return seen;
}

std::vector<Color> BlackAndWhitePixels(const std::vector<bool>& isWhite) {
  std::vector<Color> colors;
  colors.reserve(isWhite.size());
  for (const bool pixel : isWhite) colors.push_back(pixel ? white : black);
  return colors;
}

std::vector<Color> SeenImage(const TestRaster& image, const TestRaster& mask, int bits) {
  if (image.Width() != longRowSize || bits != 1) return image.Pixels();
  return BlackAndWhitePixels(SeenInEightByteRows(TenByteRows({&image, &mask}), 0));
}

std::vector<bool> SeenTransparent(const TestRaster& image, const TestRaster& mask, int bits) {
  if (mask.Width() != longRowSize) return WhitePixels(mask);
  if (bits != 1) return SeenInEightByteRows(TenByteRows({&mask}), 0);
  return SeenInEightByteRows(TenByteRows({&image, &mask}), declaredPlane);
}

std::vector<Color> SeenBitmap(const TestRaster& composed, int bits) {
  if (bits == 8) return ShownBy256ColorBitmap(composed);
  if (composed.Width() != longRowSize || bits != 1) return composed.Pixels();
  return BlackAndWhitePixels(SeenInEightByteRows(TenByteRows({&composed}), 0));
}

std::vector<Color> ShownBy256ColorBitmap(const TestRaster& composed) {
  std::vector<Color> entries;
  for (const Color color : composed.Pixels()) {
    if (entries.size() < 256 && std::find(entries.begin(), entries.end(), color) == entries.end()) {
      entries.push_back(color);
    }
  }
  entries.resize(256, 0);

  const int size = composed.Width();
  TestRaster shown(size, size);
  Color previous = entries[0];
  for (int y = size - 1; y >= 0; --y) {
    for (int x = 0; x < size; ++x) {
      const Color color = composed.Pixel(x, y);
      if (color == black) {
        previous = entries[0];
      } else if (color == white) {
        previous = entries[255];
      } else if (std::find(entries.begin() + 1, entries.begin() + 255, color) != entries.begin() + 255) {
        previous = color;
      }
      shown.Set(x, y, previous);
    }
  }
  return shown.Pixels();
}

}  // namespace tarvik
