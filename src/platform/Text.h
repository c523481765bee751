#pragma once

#include <string>
#include <string_view>

namespace tarvik {

// UTF-8 to UTF-16 and back: every text of the program is UTF-8, windows are created and captioned through the W
// functions. Parts that are no valid text become U+FFFD.
std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view utf16);

}  // namespace tarvik
