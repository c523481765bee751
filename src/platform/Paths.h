#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

// Paths of the program and the system, UTF-8. Folders come without a backslash at their end, except the root of a
// drive ("C:\") and where it is said otherwise.
std::string ProgramPath();    // the executable
std::string ProgramFolder();  // the folder that holds it
std::string SystemFolder();   // "C:\Windows\System32" on most machines
std::string TempFolder();     // the user's folder for temporary files, with a backslash at its end

// The path in the form that the W functions take to the letter: of any length, and with names that Windows would
// otherwise trim or take for a device. Repeated backslashes, which such a call would not forgive, become one. A path
// that is neither on a drive nor on a share, or that has slashes in place of backslashes, stays as it is.
std::wstring LiteralPath(std::string_view path);

// The path as it is while it is of common length, so that names of devices are known for what they are; a longer one in
// the literal form.
std::wstring SystemPath(const std::string& path);

}  // namespace tarvik
