#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string>

namespace tarvik {

// The path of the first of the files and folders that were dropped, UTF-8, as WM_DROPFILES names them in its wParam;
// empty if there is none. Releases what the message brought. Throws MissingFunctionError if this system has no such
// functions.
std::string TakeFirstDropped(HDROP dropped);

}  // namespace tarvik
