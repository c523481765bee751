#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

// Paths of the program and the system, UTF-8. Folders have no trailing backslash, except the root of a drive ("C:\")
// and where stated otherwise.
std::string ProgramPath();    // the executable
std::string ProgramFolder();  // the folder that holds it
std::string SystemFolder();   // "C:\Windows\System32" on most machines
std::string TempFolder();     // the user's folder for temporary files, with a trailing backslash

// The extended-length form (\\?\): any length, and Windows neither trims names nor takes them for devices. Repeated
// backslashes, which this form does not allow, are reduced to one. A path that is neither on a drive nor on a share, or
// that has slashes in place of backslashes, is unchanged.
std::wstring LiteralPath(std::string_view path);

// Unchanged below MAX_PATH bytes, so that device names (NUL, COM1) keep their meaning; extended-length from there on.
std::wstring SystemPath(const std::string& path);

}  // namespace tarvik
