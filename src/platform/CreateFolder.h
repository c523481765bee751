#pragma once

#include <optional>
#include <string>

namespace tarvik {

// Makes a folder in one that exists; its path as the system took it, without the blanks and dots that it drops at the
// end of a name. Nothing where there can be none: the name is no name for a folder, something stands there, or this
// user may not. Paths are UTF-8.
std::optional<std::string> CreateFolder(const std::string& path);

}  // namespace tarvik
