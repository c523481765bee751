#pragma once

#include <string>
#include <string_view>

namespace tarvik {

// The path in lines of at most `columns` columns, separated by "\r\n": each is broken behind its last "\", or inside a
// name that is longer than a line. A character of East Asia takes two columns, and so does each other one that UTF-8
// writes in three bytes or more. `path` is UTF-8; `columns` is at least 2.
std::string WrapPath(std::string_view path, int columns);

}  // namespace tarvik
