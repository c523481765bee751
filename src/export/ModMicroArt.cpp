#include "export/ModMicroArt.h"

#include <algorithm>
#include <span>

#include "base/ColorIndex.h"
#include "base/PixelCopy.h"
#include "export/ModPalette.h"

namespace tarvik::ModMicroArt {
namespace {

constexpr int paletteSize = 256;

bool IsBlackOrWhite(Color color) {
  return color == black || color == white;
}

// Unlike a palette's bytes, a value outside the 24 bits of a colour is no standard colour.
bool IsStandardColor(Color color) {
  return color <= white && ModPalette::SixteenColorIndex(color);
}

bool FitsPalette(std::span<const Color> pixels, BlackAndWhite blackAndWhite) {
  ColorIndex seen;
  const bool fixedSlots = blackAndWhite == BlackAndWhite::InFixedSlots;
  const int maxColors = fixedSlots ? paletteSize - 2 : paletteSize;
  return std::ranges::all_of(pixels, [&](Color color) {
    if (!(fixedSlots && IsBlackOrWhite(color))) seen.Insert(color, 0);
    return seen.Count() <= maxColors;
  });
}

}  // namespace

ColorClass Classify(const PixelView& surface, BlackAndWhite blackAndWhite) {
  const PixelCopy copy(surface);
  const std::span<const Color> pixels = copy.Pixels();
  if (std::ranges::all_of(pixels, IsBlackOrWhite)) return ColorClass::Two;
  if (std::ranges::all_of(pixels, IsStandardColor)) return ColorClass::Sixteen;
  return FitsPalette(pixels, blackAndWhite) ? ColorClass::TwoHundredFiftySix : ColorClass::TrueColor;
}

bool CaptureEntry(IconSource& icons, const IconListEntry& entry, int size, const CaptureSurfaces& surfaces) {
  const bool animated = IsAnimatedCursorName(entry.path);
  const int index = animated ? 0 : int{entry.index};
  const int step = animated ? int{entry.index} : 0;
  const auto icon = icons.Extract(entry.path, index);
  if (!icon) return false;
  constexpr Point corner{0, 0};
  icon->Draw(surfaces.mask, corner, size, step, DrawPart::Mask);
  icon->Draw(surfaces.image, corner, size, step, DrawPart::Image);
  icon->Draw(surfaces.composed, corner, size, step, DrawPart::Normal);
  return true;
}

}  // namespace tarvik::ModMicroArt
