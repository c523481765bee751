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

// The stored size, 5310 twips high and 6645 wide where none is stored. Each text is read by LeadingNumber, so that any
// text gives some size.
ViewSize ReadViewSize(Settings& settings);
void WriteViewSize(Settings& settings, const ViewSize& size);

// The number that a text begins with; 0 where it begins with none. Blanks before it do not count, the decimal mark is
// a point whatever the locale. A number beyond single precision comes out as its largest, one too small for it as 0.
float LeadingNumber(std::string_view text);

// A side in the nearest pixels at that many dots an inch, from twips; what no int holds is its largest or smallest. No
// other bound is kept here: the system has its own for windows.
int NearestPixels(float twips, int dotsPerInch);

}  // namespace tarvik
