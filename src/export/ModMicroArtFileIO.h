#pragma once

#include <string>

#include "base/ByteWriter.h"
#include "base/FileSink.h"
#include "base/Integer16.h"
#include "base/PixelView.h"
#include "export/ModMicroArt.h"

// Writes one captured icon as a file: icon, cursor or Windows bitmap, at the size of its surfaces and the depth of its
// colour class. The layouts are those of Windows icon resources and device-independent bitmaps, with a few deliberate
// differences, listed below. Each writer refuses to replace a read-only file, and returns false if a step of the sink
// fails; a partial file may then remain. No writer shows a message.
namespace tarvik::ModMicroArtFileIO {

// The hot spot of a cursor in pixels, from the top-left corner of the icon.
struct HotSpot {
  Integer16 x;
  Integer16 y;
  friend bool operator==(const HotSpot&, const HotSpot&) = default;
};

// Writes an icon file (.ico) from the image and the mask: pixels that are white in the mask are transparent. `colors`
// is the image's class with black and white in fixed slots.
bool WriteIcon(const PixelView& mask, const PixelView& image, ModMicroArt::ColorClass colors, const std::string& path,
               FileSink& sink);

// Writes a cursor file (.cur): the same plus the hot spot.
bool WriteCursor(const PixelView& mask, const PixelView& image, ModMicroArt::ColorClass colors, HotSpot hotSpot,
                 const std::string& path, FileSink& sink);

// Writes a bitmap file (.bmp) of the composed icon. `colors` is its class with black and white in order. The file is
// not always what readers expect:
//  - at 64 pixels its size field is that of 48 pixels (deliberate: oddities 33);
//  - at 64 pixels its 1-bit rows are two bytes longer than they should be (deliberate: oddities 34);
//  - in 256 colours black is written as 0 and white as 255, wherever the palette has them (deliberate: oddities 37).
bool WriteBitmap(const PixelView& composed, ModMicroArt::ColorClass colors, const std::string& path, FileSink& sink);

// A true-colour bitmap (.bmp) that decodes to exactly the same pixels at any size: the input of an encoder.
ByteWriter TrueColorBitmap(const PixelView& composed);

}  // namespace tarvik::ModMicroArtFileIO
