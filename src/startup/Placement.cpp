#include "startup/Placement.h"

#include <cmath>

#include "base/Conversion.h"

namespace tarvik {
namespace {

int Part(double spare, int parts) {
  return static_cast<int>(RoundToEven(spare)) / parts;
}

}  // namespace

TwipPoint CenteredCorner(const TwipSize& screen, const TwipSize& form) {
  return {Part(screen.width - form.width, 2), Part(screen.height - form.height, 3)};
}

double ToTwips(int pixels, int dotsPerInch) {
  return static_cast<double>(pixels) * twipsPerInch / dotsPerInch;
}

int ToPixels(int twips, int dotsPerInch) {
  return static_cast<int>(std::lround(static_cast<double>(twips) * dotsPerInch / twipsPerInch));
}

}  // namespace tarvik
