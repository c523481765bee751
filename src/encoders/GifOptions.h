#pragma once

#include <cstdint>
#include <string>

namespace tarvik {

// What the GIF options dialog decides, without its window.

// The dialog's caption once a file of that many bytes is written, the same in every language: the size in thousands
// of bytes, with as many decimals as it has ("Convert File To Gif  ( Its size is 1.078K)"; 999 bytes are 0.999).
// All of it is deliberate: oddities 47.
std::string CaptionWithSize(std::uint64_t bytes);

}  // namespace tarvik
