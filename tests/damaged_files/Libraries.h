#pragma once

#include <span>

#include "damaged_files/IntactFile.h"

namespace tarvik::support {

// Libraries of icons and nothing else, written byte by byte: no linker makes some of these kinds any more.

enum class Bitness { Bits32, Bits64 };

// A library as Windows has them since NT ("PE"): headers and one section that holds the resource tree.
IntactFile Library(Bitness bitness, std::span<const IconPicture> pictures);

// Such a library of one icon, intact and without its last two pages of memory, which its headers tell of: systems that
// read it break in the middle of the picture, and keep what they had made by then.
Bytes LibraryOfOneIcon();
Bytes CutOffLibrary();

// A library as 16-bit Windows had them ("NE"): a resource table of types and names.
IntactFile SixteenBitLibrary(std::span<const IconPicture> pictures);

}  // namespace tarvik::support
