#pragma once

#include <cstddef>
#include <string_view>

namespace tarvik {

// The length in bytes of the first character of a UTF-8 text: 1 to 4, and 0 for an empty text. A byte that starts no
// complete character counts as one character, so that any bytes can be traversed to the end.
std::size_t FirstCharacterLength(std::string_view text);

// The first `count` characters of a UTF-8 text, or all of it if it has fewer.
std::string_view FirstCharacters(std::string_view text, int count);

}  // namespace tarvik
