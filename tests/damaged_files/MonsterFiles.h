#pragma once

#include <cstdint>

#include "platform/IconFiles.h"

namespace tarvik::support {

// Files made to cost a reader far more than their icons are worth.

// An animated cursor of one picture, which is inside that many lists, one inside the other.
Bytes NestedLists(int depth);
// An animated cursor of one picture, with that many empty chunks of another type before it.
Bytes ManyChunks(int count);
// An icon file with that many entries, all of one picture of 32 pixels in one colour.
Bytes ManyEntries(int count);
// An icon file whose picture is a PNG of that many pixels on each side, all black.
Bytes LargePng(std::uint32_t side);

}  // namespace tarvik::support
