#include "encoders/IndexedPicture.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "encoders/ColorReduction.h"

namespace tarvik {
namespace {

constexpr std::size_t maxColors = 256;

constexpr Color ColorOf(int red, int green, int blue) {
  return static_cast<Color>(red + 256 * green + 65536 * blue);
}

// The different colours of a picture, numbered in the order they first appear.
class ColorNumbers {
 public:
  // The number of the colour; a new colour gets the next one. Each call counts as one pixel.
  std::uint32_t NumberOf(Color color) {
    if (2 * (colors_.size() + 1) > slots_.size()) Grow();
    std::uint32_t& slot = slots_[SlotOf(color)];
    if (slot == empty) {
      slot = static_cast<std::uint32_t>(colors_.size());
      colors_.push_back({color, 0});
    }
    ++colors_[slot].count;
    return slot;
  }

  const std::vector<CountedColor>& Colors() const { return colors_; }

 private:
  static constexpr std::uint32_t empty = 0xFFFFFFFF;

  // The slot that holds the colour's number, or the free one where it belongs.
  std::size_t SlotOf(Color color) const {
    constexpr std::uint32_t goldenRatio = 0x9E3779B9;  // 2^32 divided by it: spreads near colours over all slots
    std::size_t at = (color * goldenRatio) >> shift_;
    while (slots_[at] != empty && colors_[slots_[at]].color != color) at = (at + 1) % slots_.size();
    return at;
  }

  void Grow() {
    slots_.assign(slots_.size() * 2, empty);
    --shift_;
    for (std::uint32_t i = 0; i < colors_.size(); ++i) slots_[SlotOf(colors_[i].color)] = i;
  }

  std::vector<CountedColor> colors_;
  std::vector<std::uint32_t> slots_ = std::vector<std::uint32_t>(1024, empty);  // always 2^(32 - shift_) of them
  unsigned shift_ = 22;
};

std::vector<Color> PixelsOf(const PixelView& picture) {
  std::vector<Color> pixels(static_cast<std::size_t>(picture.Width()) * static_cast<std::size_t>(picture.Height()));
  picture.CopyPixels(pixels);
  return pixels;
}

Reduction KeepColors(std::span<const CountedColor> colors) {
  Reduction kept;
  for (const CountedColor& counted : colors) {
    kept.indexes.push_back(static_cast<std::uint8_t>(kept.palette.size()));
    kept.palette.push_back(counted.color);
  }
  return kept;
}

// Reduces the colours but for one, which keeps its colour and takes the palette's last index.
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

// The step of the web palette's six levels, and how many there are of them.
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
  // Each pixel's colour gives way to its number.
  std::vector<std::uint32_t> pixels = PixelsOf(picture);
  ColorNumbers numbers;
  for (std::uint32_t& pixel : pixels) pixel = numbers.NumberOf(pixel);
  const std::vector<CountedColor>& colors = numbers.Colors();

  std::optional<std::size_t> kept;
  if (transparent) {
    const auto found = std::ranges::find(colors, *transparent, &CountedColor::color);
    if (found != colors.end()) kept = static_cast<std::size_t>(found - colors.begin());
  }

  Reduction reduction = BestPalette(colors, kept);
  IndexedPicture result{picture.Width(), picture.Height(), std::move(reduction.palette), {}, std::nullopt};
  result.pixels.reserve(pixels.size());
  for (const std::uint32_t number : pixels) result.pixels.push_back(reduction.indexes[number]);
  if (kept) result.transparentIndex = reduction.indexes[*kept];
  return result;
}

IndexedPicture IndexByWebPalette(const PixelView& picture, std::optional<Color> transparent) {
  IndexedPicture result{picture.Width(), picture.Height(), WebPalette(), {}, std::nullopt};
  const auto extra = static_cast<std::uint8_t>(result.palette.size());
  const std::vector<Color> pixels = PixelsOf(picture);
  result.pixels.reserve(pixels.size());
  for (const Color color : pixels) {
    const bool seeThrough = color == transparent;
    if (seeThrough) result.transparentIndex = extra;
    result.pixels.push_back(seeThrough ? extra : static_cast<std::uint8_t>(WebIndex(color)));
  }
  if (transparent && result.transparentIndex)
    result.palette.push_back(result.palette[static_cast<std::size_t>(WebIndex(*transparent))]);
  return result;
}

}  // namespace tarvik
