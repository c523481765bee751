#pragma once

#include <cstddef>
#include <string_view>

namespace tarvik {

// How many bytes the first character of a UTF-8 text takes: 1 to 4, and 0 for an empty text. A byte that
// starts no whole character counts as one of its own, so that any bytes can be walked to their end.
std::size_t FirstCharacterLength(std::string_view text);

// The first `count` characters of a UTF-8 text, or all of it where it has no more.
std::string_view FirstCharacters(std::string_view text, int count);

}  // namespace tarvik
