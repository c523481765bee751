#pragma once

namespace tarvik {

// Sizes and positions on the screen in twips: 1/1440 inch, so that a pixel is 15 twips at 96 dots an inch.
inline constexpr int twipsPerInch = 1440;

// Twips may be broken where the dots of an inch do not divide 1440.
struct TwipSize {
  double width;
  double height;
};

struct TwipPoint {
  int left;
  int top;
};

// Where a window of that size stands: centred from left to right, and with a third of the spare height above it, so
// that it sits a little above the middle. The spare space is rounded to whole twips (a half to the even neighbour) and
// divided without remainder, towards zero, also where the window is larger than the screen.
TwipPoint CenteredCorner(const TwipSize& screen, const TwipSize& form);

// Pixels into twips, and twips into the nearest pixel, at so many dots an inch.
double ToTwips(int pixels, int dotsPerInch);
int ToPixels(int twips, int dotsPerInch);

}  // namespace tarvik
