#pragma once

#include <string>
#include <string_view>

#include "startup/Settings.h"

namespace tarvik {

// The enhanced view's size in twips, with its frame. Kept between runs.
struct ViewSize {
  float height;
  float width;

  friend bool operator==(const ViewSize&, const ViewSize&) = default;
};

// The stored size, or 5310 twips high and 6645 wide if none is stored. Each text is read by LeadingNumber, so that any
// text gives some size.
ViewSize ReadViewSize(Settings& settings);
void WriteViewSize(Settings& settings, const ViewSize& size);

// The number at the start of a text; 0 if there is none. Blanks before it are skipped, the decimal mark is a point
// whatever the locale. A number beyond single precision becomes the largest one, one too small for it 0.
float LeadingNumber(std::string_view text);

// Converts twips to the nearest pixels at that dpi; results beyond the range of int are clamped. There is no other
// bound: the system has its own for windows.
int NearestPixels(float twips, int dotsPerInch);

}  // namespace tarvik
