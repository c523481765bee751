#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace tarvik {

// The path of the first of the dropped files and folders, UTF-8, from the wParam of WM_DROPFILES; empty if there is
// none. Frees the message's data. Throws MissingFunctionError if this system lacks these functions.
std::string TakeFirstDropped(HDROP dropped);

}  // namespace tarvik
