#pragma once

#include <cstddef>

#include "base/ByteWriter.h"
#include "base/PixelCopy.h"
#include "export/ModPalette.h"

// The pixel data of a file, one writer for each depth. All append the bottom row first, each row from left to right.
// Rows are padded only where stated. Unused bits of a row's last byte are 0 in 1-bit rows; in 4-bit rows the unused
// half counts as a colour without an entry.
namespace tarvik::ModMicroArtFileIO {

// The bytes of a row of `width` pixels in Write1Bit: eight pixels per byte and the extra bytes after them.
std::size_t RowBytes1Bit(int width);

// One bit per pixel, 1 for white and 0 for any other colour, the leftmost in the high bit. Two zero bytes follow each
// row unless the picture is 32 pixels wide: whole 4-byte words at 16, 32 and 48 pixels, and rows of 10 bytes at 64,
// where readers expect 8 (deliberate: oddities 34).
void Write1Bit(const PixelCopy& pixels, ByteWriter& file);

// Four bits per pixel, the left of two in the high half: the index of its colour among the sixteen. A colour that is
// not among them repeats the last index found for the same half of a byte, across rows too; 0 at the start. No nearest
// colour is searched for (deliberate: oddities 35).
void Write4Bit(const PixelCopy& pixels, ByteWriter& file);

// A byte per pixel: 0 for black, 255 for white, for another colour its first entry in the palette from 1 to 254. A
// colour without an entry repeats the byte written just before it, across rows too; 0 at the start (deliberate:
// oddities 36).
void Write8Bit(const PixelCopy& pixels, const ModPalette::Palette256& palette, ByteWriter& file);

// Three bytes per pixel: blue, green, red.
void Write24Bit(const PixelCopy& pixels, ByteWriter& file);

// The same with each row padded with zero bytes to whole 4-byte words, as every reader expects. Differs from Write24Bit
// at widths that are not a multiple of 4.
void WritePadded24Bit(const PixelCopy& pixels, ByteWriter& file);

}  // namespace tarvik::ModMicroArtFileIO
