#include "base/Enlargement.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr int parts = DisplayScale::usualDots;  // shares are counted in these fractions of a side

// Two adjacent pixels along one side of the picture, and the share of the second. At the picture's end both are the
// last pixel.
struct Neighbours {
  int first;
  int next;
  int ofNext;
};

Neighbours NeighboursAt(const DisplayScale& scale, int displayPixel, int length) {
  const DisplayScale::Mixture mixture = scale.MixtureAt(displayPixel);
  return {std::min(mixture.first, length - 1), std::min(mixture.first + 1, length - 1), mixture.ofNext};
}

int Mix(int first, int next, int ofNext) {
  return first * (parts - ofNext) + next * ofNext;
}

}  // namespace

void Enlarge(const PixelRows<const std::uint8_t>& picture, const DisplayScale& scale, Point corner,
             const PixelRows<std::uint8_t>& part) {
  for (int y = 0; y < part.height; ++y) {
    const Neighbours rows = NeighboursAt(scale, corner.y + y, picture.height);
    const std::uint8_t* const upper = picture.Row(rows.first);
    const std::uint8_t* const lower = picture.Row(rows.next);
    std::uint8_t* out = part.Row(y);
    for (int x = 0; x < part.width; ++x) {
      const Neighbours columns = NeighboursAt(scale, corner.x + x, picture.width);
      const int left = columns.first * bytesPerPixel;
      const int right = columns.next * bytesPerPixel;
      for (int color = 0; color < bytesPerPixel; ++color) {
        const int above = Mix(upper[left + color], upper[right + color], columns.ofNext);
        const int below = Mix(lower[left + color], lower[right + color], columns.ofNext);
        *out++ = static_cast<std::uint8_t>((Mix(above, below, rows.ofNext) + parts * parts / 2) / (parts * parts));
      }
    }
  }
}

}  // namespace tarvik
