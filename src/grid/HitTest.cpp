#include "grid/HitTest.h"

#include "base/Conversion.h"

namespace tarvik {
namespace {

constexpr double rightBound = 580;  // pixels, at every icon size (deliberate: oddities 26)

}  // namespace

std::optional<HitCell> CellAt(const GridGeometry& geometry, double x, double y, int innerHeight) {
  const bool inside = x >= 0 && x <= rightBound && y >= 0 && y <= innerHeight;
  if (!inside) return std::nullopt;
  const int column = static_cast<int>(RoundToEven(x)) / geometry.CellPitch;
  const int row = static_cast<int>(RoundToEven(y)) / geometry.CellPitch;
  return HitCell{row * geometry.Columns + column,
                 {frameMargin + column * geometry.CellPitch, frameMargin + row * geometry.CellPitch}};
}

}  // namespace tarvik
