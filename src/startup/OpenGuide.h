#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tarvik {

// Opens the user's guide in the language of `code` with whatever the system shows web pages with. If the page is
// missing, or if nothing opens it, a message of `owner` says which of the two in that language.
void OpenGuide(HWND owner, const std::string& programFolder, std::string_view code);

}  // namespace tarvik
