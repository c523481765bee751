#pragma once

#include <string>

namespace tarvik {

// The calculations of the hot-spot picker. Coordinates are in pixels of the magnified picture or of the icon, from the
// top-left corner.

// Screen pixels per icon pixel, from the side of the magnified picture: a 64th of it, to the nearest whole number.
int HotSpotScale(int magnifiedSide);

// The icon's coordinate for a click at a position of the magnified picture: never above `bound`.
int PickedCoordinate(int pointer, int scale, int bound);

// The same for a pointer move: also never below 0.
int PointedCoordinate(int pointer, int scale, int bound);

// A number with at least two digits: 3 is "03", 12 is "12".
std::string TwoDigits(int number);

}  // namespace tarvik
