#pragma once

#include <cstdint>
#include <string>

namespace tarvik {

// The logic of the GIF options dialog, without its window.

// The dialog's caption after a file of that many bytes was written, the same in every language: the size in thousands
// of bytes, with all its decimals ("Convert File To Gif  ( Its size is 1.078K)"; 999 bytes are 0.999). All of it is
// deliberate: oddities 47.
std::string CaptionWithSize(std::uint64_t bytes);

}  // namespace tarvik
