#include "encoders/IndexedPicture.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "base/ColorIndex.h"
#include "base/PixelCopy.h"
#include "encoders/ColorReduction.h"

namespace tarvik {
namespace {

constexpr std::size_t maxColors = 256;

constexpr Color ColorOf(int red, int green, int blue) {
  return static_cast<Color>(red + 256 * green + 65536 * blue);
}

// The different colours of a picture in order of first appearance, and for each pixel the number of its colour.
struct NumberedColors {
  std::vector<CountedColor> colors;
  std::vector<std::uint32_t> pixels;
};

NumberedColors NumberColors(const PixelCopy& picture) {
  NumberedColors numbered;
  numbered.pixels.reserve(picture.Pixels().size());
  ColorIndex index;
  for (const Color color : picture.Pixels()) {
    const auto next = static_cast<int>(numbered.colors.size());
    const int number = index.NumberOf(color, next);
    if (number == next) numbered.colors.push_back({color, 0});
    ++numbered.colors[static_cast<std::size_t>(number)].count;
    numbered.pixels.push_back(static_cast<std::uint32_t>(number));
  }
  return numbered;
}

Reduction KeepColors(std::span<const CountedColor> colors) {
  Reduction kept;
  for (const CountedColor& counted : colors) {
    kept.indexes.push_back(static_cast<std::uint8_t>(kept.palette.size()));
    kept.palette.push_back(counted.color);
  }
  return kept;
}

// Reduces all colours but one, which is kept exactly and gets the palette's last index.
Reduction ReduceOtherColors(std::vector<CountedColor> colors, std::size_t kept) {
  const auto at = colors.begin() + static_cast<std::ptrdiff_t>(kept);
  const Color keptColor = at->color;
  colors.erase(at);
  Reduction reduction = ReduceColors(colors, maxColors - 1);
  reduction.indexes.insert(reduction.indexes.begin() + static_cast<std::ptrdiff_t>(kept),
                           static_cast<std::uint8_t>(reduction.palette.size()));
  reduction.palette.push_back(keptColor);
  return reduction;
}

Reduction BestPalette(const std::vector<CountedColor>& colors, std::optional<std::size_t> kept) {
  if (colors.size() <= maxColors) return KeepColors(colors);
  return kept ? ReduceOtherColors(colors, *kept) : ReduceColors(colors, maxColors);
}

// The step between the web palette's levels, and their number: six.
constexpr int webStep = 51;
constexpr int webLevels = 6;

constexpr int WebLevel(int channel) {
  return (channel + webStep / 2) / webStep;
}

constexpr int WebIndex(Color color) {
  return (WebLevel(RedOf(color)) * webLevels + WebLevel(GreenOf(color))) * webLevels + WebLevel(BlueOf(color));
}

std::vector<Color> WebPalette() {
  std::vector<Color> palette;
  for (int red = 0; red < webLevels; ++red)
    for (int green = 0; green < webLevels; ++green)
      for (int blue = 0; blue < webLevels; ++blue)
        palette.push_back(ColorOf(red * webStep, green * webStep, blue * webStep));
  return palette;
}

}  // namespace

IndexedPicture IndexByBestPalette(const PixelView& picture, std::optional<Color> transparent) {
  const NumberedColors numbered = NumberColors(PixelCopy(picture));
  const std::vector<CountedColor>& colors = numbered.colors;

  std::optional<std::size_t> kept;
  if (transparent) {
    const auto found = std::ranges::find(colors, *transparent, &CountedColor::color);
    if (found != colors.end()) kept = static_cast<std::size_t>(found - colors.begin());
  }

  Reduction reduction = BestPalette(colors, kept);
  IndexedPicture result{picture.Width(), picture.Height(), std::move(reduction.palette), {}, std::nullopt};
  result.pixels.reserve(numbered.pixels.size());
  for (const std::uint32_t number : numbered.pixels) result.pixels.push_back(reduction.indexes[number]);
  if (kept) result.transparentIndex = reduction.indexes[*kept];
  return result;
}

IndexedPicture IndexByWebPalette(const PixelView& picture, std::optional<Color> transparent) {
  IndexedPicture result{picture.Width(), picture.Height(), WebPalette(), {}, std::nullopt};
  const auto extra = static_cast<std::uint8_t>(result.palette.size());
  const PixelCopy pixels(picture);
  result.pixels.reserve(pixels.Pixels().size());
  for (const Color color : pixels.Pixels()) {
    const bool seeThrough = color == transparent;
    if (seeThrough) result.transparentIndex = extra;
    result.pixels.push_back(seeThrough ? extra : static_cast<std::uint8_t>(WebIndex(color)));
  }
  if (transparent && result.transparentIndex)
    result.palette.push_back(result.palette[static_cast<std::size_t>(WebIndex(*transparent))]);
  return result;
}

}  // namespace tarvik
