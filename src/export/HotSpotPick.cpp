#include "export/HotSpotPick.h"

#include <algorithm>
#include <cstdlib>

namespace tarvik {
namespace {

constexpr int maxIconSize = 64;  // pixels on a side

}  // namespace

int HotSpotScale(int magnifiedSide) {
  const int scale = (magnifiedSide - 1 + maxIconSize / 2) / maxIconSize;
  return std::max(scale, 1);
}

int PickedCoordinate(int pointer, int scale, int bound) {
  return std::min(pointer / scale, bound);
}

int PointedCoordinate(int pointer, int scale, int bound) {
  return std::min(std::max(pointer / scale, 0), bound);
}

std::string TwoDigits(int number) {
  const std::string digits = std::to_string(std::abs(number));
  std::string text = number < 0 ? "-" : "";
  if (digits.size() < 2) text += '0';
  return text + digits;
}

}  // namespace tarvik
