#pragma once

#include <string>

namespace tarvik {

// What the hot-spot picker computes. Coordinates are in pixels of the magnified picture or of the icon, from the
// top-left corner.

// Screen pixels an icon pixel, from the side of the magnified picture: a 64th of it, to the nearest whole number.
int HotSpotScale(int magnifiedSide);

// The icon's coordinate at a position of the magnified picture, where it is clicked: never above `bound`.
int PickedCoordinate(int pointer, int scale, int bound);

// The same where the pointer only passes: never below 0 either.
int PointedCoordinate(int pointer, int scale, int bound);

// A number with at least two digits: 3 is "03", 12 is "12".
std::string TwoDigits(int number);

}  // namespace tarvik
