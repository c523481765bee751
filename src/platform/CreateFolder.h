#pragma once

#include <optional>
#include <string>

namespace tarvik {

// Creates a folder in an existing parent. Returns its path as the system stored it, without the trailing blanks and
// dots that it removes from a name, or nothing if the name is invalid, already taken, or access is denied. Paths are
// UTF-8.
std::optional<std::string> CreateFolder(const std::string& path);

}  // namespace tarvik
