#include "support/TestPictures.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace tarvik::support {
namespace {

Color ColorOf(double red, double green, double blue) {
  const auto channel = [](double value) { return static_cast<Color>(std::clamp(std::lround(value), 0L, 255L)); };
  return channel(red) + 256 * channel(green) + 65536 * channel(blue);
}

}  // namespace

TestRaster Gradient(int size) {
  TestRaster picture(size, size);
  const double scale = 255.0 / std::max(size - 1, 1);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) picture.Set(x, y, ColorOf(x * scale, y * scale, 255 - (x + y) * scale / 2));
  return picture;
}

TestRaster Noise(int size, std::uint32_t seed) {
  TestRaster picture(size, size);
  std::mt19937 random(seed);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) picture.Set(x, y, static_cast<Color>(random() % 0x1000000));
  return picture;
}

TestRaster Photo(int size, std::uint32_t seed) {
  TestRaster picture(size, size);
  std::mt19937 random(seed);
  const double phase = static_cast<double>(random() % 628) / 100;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const double u = static_cast<double>(x) / size;
      const double v = static_cast<double>(y) / size;
      const double light = 0.55 + 0.45 * std::sin(5 * u + 3 * v + phase);
      const double ball = std::max(0.0, 1 - 4 * std::hypot(u - 0.5, v - 0.45));
      const double grain = static_cast<double>(random() % 9) - 4;
      picture.Set(x, y,
                  ColorOf(40 + 150 * light + 60 * ball + grain, 60 + 110 * light * v + 90 * ball + grain,
                          110 * (1 - v) + 80 * light + grain));
    }
  }
  return picture;
}

TestRaster ManyColors(int size, int colors) {
  TestRaster picture(size, size);
  // Odd, so that multiples of it below 2^24 are all different.
  constexpr Color step = 0x3A7F1B;
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) picture.Set(x, y, static_cast<Color>((y * size + x) % colors) * step % 0x1000000);
  return picture;
}

}  // namespace tarvik::support
