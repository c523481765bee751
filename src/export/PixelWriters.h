#pragma once

#include <cstddef>

#include "base/ByteWriter.h"
#include "base/PixelCopy.h"
#include "export/ModPalette.h"

// The pixels of a picture as a file holds them, one writer for each depth. All append the bottom row first, each row
// from left to right, and none pads rows but as it says. A row past its end has no pixels: the rest of a last byte is 0
// in 1-bit rows and counts as a colour without entry in 4-bit rows.
namespace tarvik::ModMicroArtFileIO {

// Bytes that Write1Bit gives a row of `width` pixels: eight pixels a byte and the two bytes after them.
std::size_t RowBytes1Bit(int width);

// One bit a pixel, 1 for white and 0 for any other colour, the leftmost in the high bit. Two zero bytes follow each
// row unless the picture is 32 pixels wide: whole 4-byte words at 16, 32 and 48 pixels, and rows of 10 bytes at 64,
// where readers expect 8 (deliberate: oddities 34).
void Write1Bit(const PixelCopy& pixels, ByteWriter& file);

// Four bits a pixel, the left of two in the high half: the index of its colour among the sixteen. A colour that is not
// among them repeats the value last found for the same half of a byte, wherever in the picture that was, 0 before any;
// no nearest colour is looked for (deliberate: oddities 35).
void Write4Bit(const PixelCopy& pixels, ByteWriter& file);

// A byte a pixel: 0 for black, 255 for white, for another colour its first entry in the palette from 1 to 254. A colour
// without an entry repeats the byte written just before it, across rows too; 0 at the start (deliberate: oddities 36).
void Write8Bit(const PixelCopy& pixels, const ModPalette::Palette256& palette, ByteWriter& file);

// Three bytes a pixel: blue, green, red.
void Write24Bit(const PixelCopy& pixels, ByteWriter& file);

// The same with each row filled up by zero bytes to whole 4-byte words, as every reader expects. Differs from
// Write24Bit at widths that are no multiple of 4.
void WritePadded24Bit(const PixelCopy& pixels, ByteWriter& file);

}  // namespace tarvik::ModMicroArtFileIO
