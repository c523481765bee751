#pragma once

#include <cstdint>

#include "base/PixelView.h"
#include "search/icons/IconList.h"
#include "search/icons/IconSource.h"

// Captures one icon as pixels, and chooses the number of colours of its file.
namespace tarvik::ModMicroArt {

// The number of colours of a written picture; -1 is true colour.
enum class ColorClass : std::int16_t { Two = 2, Sixteen = 16, TwoHundredFiftySix = 256, TrueColor = -1 };

// How black and white are stored in a 256-colour picture: the icon palette reserves an entry for each, whether they
// occur or not; the bitmap palette adds them like any other colour.
enum class BlackAndWhite : bool { InOrder = false, InFixedSlots = true };

// The smallest class that holds the picture's colours: black and white alone, the sixteen standard colours, 256
// colours, or true colour, tried in that order. With black and white in fixed slots, 254 other colours fit into 256.
ColorClass Classify(const PixelView& surface, BlackAndWhite blackAndWhite);

// The three pictures that an icon is captured into, each of the icon's size and cleared to a blank icon.
struct CaptureSurfaces {
  DrawSurface& mask;      // white at the icon's transparent pixels
  DrawSurface& image;     // the colours alone
  DrawSurface& composed;  // the icon drawn over the background
};

// Extracts the entry's icon from its file again and draws its mask, its image and the composed icon, `size` pixels on a
// side, at the top-left corner of the three surfaces. For an animated cursor the entry is that step of the file's first
// icon. Returns false if the file no longer yields the icon: the surfaces then stay cleared, and a blank is saved
// (deliberate: oddities 31). A part that cannot be drawn is left out; the others are still drawn.
bool CaptureEntry(IconSource& icons, const IconListEntry& entry, int size, const CaptureSurfaces& surfaces);

}  // namespace tarvik::ModMicroArt
