#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace tarvik {

// Opens the user's guide in the language of `code` with the default program for web pages. If the page is missing, or
// if no program opens it, a message box of `owner` says which of the two, in that language.
void OpenGuide(HWND owner, const std::string& programFolder, std::string_view code);

}  // namespace tarvik
