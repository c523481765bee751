#include "export/ModPalette.h"

#include "base/ColorIndex.h"
#include "base/PixelCopy.h"

namespace tarvik::ModPalette {

Palette256 BuildIconPalette(const PixelCopy& image) {
  Palette256 palette{};
  palette[blackEntry] = black;
  palette[whiteEntry] = white;
  ColorIndex seen;
  int entry = blackEntry + 1;
  for (const Color color : image.Pixels()) {
    if (color == black || color == white || !seen.Insert(color, entry)) continue;
    palette[static_cast<std::size_t>(entry++)] = color;
    if (entry == whiteEntry) break;
  }
  return palette;
}

Palette256 BuildBitmapPalette(const PixelCopy& composed) {
  Palette256 palette{};
  ColorIndex seen;
  std::size_t entry = 0;
  for (const Color color : composed.Pixels()) {
    if (!seen.Insert(color, static_cast<int>(entry))) continue;
    palette[entry++] = color;
    if (entry == palette.size()) break;
  }
  return palette;
}

}  // namespace tarvik::ModPalette
