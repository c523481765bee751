#pragma once

#include <span>

#include "damaged_files/IntactFile.h"

namespace tarvik::support {

// Libraries of icons and nothing else, written byte by byte: current linkers no longer make some of these kinds.

enum class Bitness { Bits32, Bits64 };

// A library in the format since Windows NT ("PE"): headers and one section that holds the resource tree.
IntactFile Library(Bitness bitness, std::span<const IconPicture> pictures);

// Such a library of one icon, intact except that its last two pages of memory are missing, which its headers still
// include. Systems that read it fault in the middle of the picture, and leak what they had made by then.
Bytes LibraryOfOneIcon();
Bytes CutOffLibrary();

// A library in the format of 16-bit Windows ("NE"): a resource table of types and names.
IntactFile SixteenBitLibrary(std::span<const IconPicture> pictures);

}  // namespace tarvik::support
