#pragma once

#include <algorithm>
#include <cstdint>

namespace tarvik {

// How much larger a display shows what the program counts in pixels. The program's pixels are those of a display with
// 96 dots an inch; one with more shows them enlarged in the same proportion, and one with fewer as they are. All rules
// count in the program's pixels; only windows and painting ask this class.
//
// Pixel n of a picture begins at the first display pixel whose corner lies in it, so that the two directions fit
// together: FromDisplay(ToDisplay(n)) == n.
class DisplayScale {
 public:
  static constexpr int usualDots = 96;  // an inch

  constexpr DisplayScale() = default;
  constexpr explicit DisplayScale(int dotsPerInch) : dots_(std::max(dotsPerInch, usualDots)) {}

  // Nothing is enlarged.
  constexpr bool IsOne() const { return dots_ == usualDots; }

  // The display pixel at which pixel `pixels` begins, and so how many display pixels a length of `pixels` takes, a
  // broken one counted whole. `pixels` is 0 or more, up to millions.
  constexpr int ToDisplay(int pixels) const { return DivideUp(pixels * std::int64_t{dots_}, usualDots); }
  // The pixel under a display pixel; less than 0 left of or above the picture.
  constexpr int FromDisplay(int displayPixel) const {
    return DivideDown(displayPixel * std::int64_t{usualDots}, dots_);
  }

  // What a display pixel shows: `first` and, by so many 96ths, the pixel after it. Whole scales mix nothing.
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

  // The display pixels, from `begin` up to before `end`, that show anything of the pixels from `begin` up to before
  // `end`: with broken scales those at both ends show others as well.
  struct Range {
    int begin = 0;
    int end = 0;
    friend bool operator==(const Range&, const Range&) = default;
  };
  constexpr Range Showing(Range pixels) const {
    return {DivideDown(pixels.begin * std::int64_t{dots_}, usualDots), ToDisplay(pixels.end)};
  }

 private:
  static constexpr int DivideDown(std::int64_t number, int by) {
    return static_cast<int>(number >= 0 ? number / by : -((by - 1 - number) / by));
  }
  static constexpr int DivideUp(std::int64_t number, int by) { return -DivideDown(-number, by); }

  int dots_ = usualDots;
};

}  // namespace tarvik
