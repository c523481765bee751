#pragma once

#include <string>
#include <string_view>

namespace tarvik {

// Breaks the path into lines of at most `columns` columns, separated by "\r\n": each is broken after its last "\", or
// inside a name that is longer than a line. A character of three or more UTF-8 bytes, East Asian ones included, counts
// two columns. `path` is UTF-8; `columns` is at least 2.
std::string WrapPath(std::string_view path, int columns);

}  // namespace tarvik
