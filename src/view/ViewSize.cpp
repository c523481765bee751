#include "view/ViewSize.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/Conversion.h"
#include "startup/Placement.h"

namespace tarvik {
namespace {

// The section and keys of the settings file, and the values that stand for an absent key.
constexpr const char* settingsSection = "Bitmapview";
constexpr const char* heightKey = "Height";
constexpr const char* widthKey = "Width";
constexpr const char* defaultHeight = "5310";
constexpr const char* defaultWidth = "6645";

std::string NumberText(float value) {
  // As many digits as a single-precision number needs to come back the same; none needs more than these.
  std::array<char, 64> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed).ptr;
  return {digits.data(), end};
}

}  // namespace

ViewSize ReadViewSize(Settings& settings) {
  return {LeadingNumber(settings.ReadIniSetting(settingsSection, heightKey, defaultHeight)),
          LeadingNumber(settings.ReadIniSetting(settingsSection, widthKey, defaultWidth))};
}

void WriteViewSize(Settings& settings, const ViewSize& size) {
  settings.WriteIniSetting(settingsSection, heightKey, NumberText(size.height));
  settings.WriteIniSetting(settingsSection, widthKey, NumberText(size.width));
}

float LeadingNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  constexpr double largest = std::numeric_limits<float>::max();
  const auto magnitude = static_cast<float>(std::min(ReadUnsignedNumber(text).value, largest));
  return negative ? -magnitude : magnitude;
}

int NearestPixels(float twips, int dotsPerInch) {
  using Pixels = std::numeric_limits<int>;
  const double pixels = std::round(double{twips} * dotsPerInch / twipsPerInch);
  return static_cast<int>(std::clamp<double>(pixels, Pixels::min(), Pixels::max()));
}

}  // namespace tarvik
