#include "view/ViewSize.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

#include "base/Conversion.h"
#include "startup/Placement.h"

namespace tarvik {
namespace {

// The section and keys of the settings file, and the values of absent keys.
constexpr const char* settingsSection = "Bitmapview";
constexpr const char* heightKey = "Height";
constexpr const char* widthKey = "Width";
constexpr const char* defaultHeight = "5310";
constexpr const char* defaultWidth = "6645";

// Writes as many decimals as LeadingNumber needs to read the same number back. (std::to_chars would give the same text,
// but its tables are a tenth of the program.)
std::string NumberText(float value) {
  constexpr int maxDecimals = 149;  // of the smallest number
  std::array<char, 200> text{};
  for (int decimals = 0; decimals <= maxDecimals; ++decimals) {
    std::snprintf(text.data(), text.size(), "%.*f", decimals, double{value});
    if (LeadingNumber(text.data()) == value) break;
  }
  return text.data();
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
