#pragma once

#include <cstdint>

#include "base/PixelView.h"
#include "search/icons/IconList.h"
#include "search/icons/IconSource.h"

// Taking one icon as pixels, and the choice of how many colours its file has.
namespace tarvik::ModMicroArt {

// How many colours a picture is written with, as the number itself; -1 is true colour.
enum class ColorClass : std::int16_t { Two = 2, Sixteen = 16, TwoHundredFiftySix = 256, TrueColor = -1 };

// What becomes of black and white in a 256-colour picture: the icon palette keeps an entry for each whether they occur
// or not, the bitmap palette gives them one like any other colour.
enum class BlackAndWhite : bool { InOrder = false, InFixedSlots = true };

// The fewest colours that hold the picture: black and white alone, the sixteen standard colours, 256 colours, or true
// colour, tried in that order. With black and white in fixed slots 254 other colours fit into 256.
ColorClass Classify(const PixelView& surface, BlackAndWhite blackAndWhite);

// The three pictures that an icon is taken into, each of the size it is taken at and cleared to that of a blank icon.
struct CaptureSurfaces {
  DrawSurface& mask;      // white where the icon is transparent
  DrawSurface& image;     // the colours alone
  DrawSurface& composed;  // the icon as it looks over the background
};

// Takes the entry's icon out of its file again and draws its mask, its image and the composed icon, `size` pixels on a
// side, at the top-left corner of the three surfaces. An entry of an animated cursor is that step of the file's
// first icon. False if the file yields no icon any more: the surfaces then stay cleared, and a blank is saved
// (deliberate: oddities 31). A part that cannot be drawn is left out, and the others are drawn all the same.
bool CaptureEntry(IconSource& icons, const IconListEntry& entry, int size, const CaptureSurfaces& surfaces);

}  // namespace tarvik::ModMicroArt
