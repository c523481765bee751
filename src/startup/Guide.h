#pragma once

#include <string>
#include <string_view>

namespace tarvik {

// The page of the user's guide in the language of `code`, in the folder "guide" next to the program; the English one
// for any other code. UTF-8.
std::string GuidePath(const std::string& programFolder, std::string_view code);

}  // namespace tarvik
