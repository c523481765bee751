#pragma once

#include <algorithm>
#include <cstdint>

namespace tarvik {

// The scale at which a display shows the program's pixels. The program's pixels are those of a 96-dpi display; a
// display with a higher dpi shows them enlarged in proportion, one with a lower dpi unscaled. All rules use the
// program's pixels; only windows and painting use this class.
//
// Pixel n of a picture begins at the first display pixel whose corner lies in it, so that the round trip is exact:
// FromDisplay(ToDisplay(n)) == n.
class DisplayScale {
 public:
  static constexpr int usualDots = 96;  // dpi

  constexpr DisplayScale() = default;
  constexpr explicit DisplayScale(int dotsPerInch) : dots_(std::max(dotsPerInch, usualDots)) {}

  // True if nothing is enlarged.
  constexpr bool IsOne() const { return dots_ == usualDots; }

  // The display pixel at which pixel `pixels` begins, which is also the length of `pixels` pixels in display pixels,
  // rounded up. `pixels` is 0 or more, up to millions.
  constexpr int ToDisplay(int pixels) const { return DivideUp(pixels * std::int64_t{dots_}, usualDots); }
  // The length of `pixels` pixels rounded to the nearest display pixel, a half up.
  constexpr int Nearest(int pixels) const {
    return DivideDown(pixels * std::int64_t{dots_} * 2 + usualDots, std::int64_t{2} * usualDots);
  }
  // The pixel under a display pixel; below 0 to the left of or above the picture.
  constexpr int FromDisplay(int displayPixel) const {
    return DivideDown(displayPixel * std::int64_t{usualDots}, dots_);
  }

  // The colour of a display pixel: `first`, mixed with so many 96ths of the pixel after it. Integral scales mix
  // nothing.
  struct Mixture {
    int first = 0;
    int ofNext = 0;
    friend bool operator==(const Mixture&, const Mixture&) = default;
  };
  constexpr Mixture MixtureAt(int displayPixel) const {
    const int first = FromDisplay(displayPixel);
    const std::int64_t end = (displayPixel + std::int64_t{1}) * usualDots;
    const std::int64_t beyond = end - (first + std::int64_t{1}) * dots_;
    return {first, static_cast<int>(std::max(beyond, std::int64_t{0}))};
  }

  // The display pixels, from `begin` to before `end`, that show any part of the pixels from `begin` to before `end`: at
  // fractional scales those at both ends show other pixels as well.
  struct Range {
    int begin = 0;
    int end = 0;
    friend bool operator==(const Range&, const Range&) = default;
  };
  constexpr Range DisplayRange(Range pixels) const {
    return {DivideDown(pixels.begin * std::int64_t{dots_}, usualDots), ToDisplay(pixels.end)};
  }

 private:
  static constexpr int DivideDown(std::int64_t number, std::int64_t by) {
    return static_cast<int>(number >= 0 ? number / by : -((by - 1 - number) / by));
  }
  static constexpr int DivideUp(std::int64_t number, int by) { return -DivideDown(-number, by); }

  int dots_ = usualDots;
};

}  // namespace tarvik
