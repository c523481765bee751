#pragma once

namespace tarvik {

// Sizes and positions on the screen in twips: 1/1440 inch, so that a pixel is 15 twips at 96 dpi.
inline constexpr int twipsPerInch = 1440;

// Twips may be fractions if the dpi do not divide 1440.
struct TwipSize {
  double width;
  double height;
};

struct TwipPoint {
  int left;
  int top;
};

// The top-left corner of a window of that size: centred horizontally, and with a third of the spare height above it, so
// that it is a little above the middle. The spare space is rounded to whole twips (a half to the even neighbour) and
// divided as integers, towards zero, also if the window is larger than the screen.
TwipPoint CenteredCorner(const TwipSize& screen, const TwipSize& form);

// Converts pixels to twips, and twips to the nearest pixel, at that dpi.
double ToTwips(int pixels, int dotsPerInch);
int ToPixels(int twips, int dotsPerInch);

}  // namespace tarvik
