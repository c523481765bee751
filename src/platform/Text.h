#pragma once

#include <string>
#include <string_view>

namespace tarvik {

// UTF-8 to UTF-16 and back: every text of the program is UTF-8, and windows and their texts use the W functions.
// Invalid sequences become U+FFFD.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view utf16);

}  // namespace tarvik
