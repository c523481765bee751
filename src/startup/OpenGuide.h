#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tarvik {

// Opens the user's guide in the language of `code` with whatever the system shows web pages with. Where the page is
// missing or nothing opens it, a message of `owner` says so in that language.
void OpenGuide(HWND owner, const std::string& programFolder, std::string_view code);

}  // namespace tarvik
