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

// The folder with a name in it: one backslash between the two, also after the root of a drive.
std::string JoinPath(std::string_view folder, std::string_view name);

// The folders that hold the given one, outermost first: "C:\Windows\Fonts" gives "C:\" and "C:\Windows". The root of
// a drive and a share ("\\server\share") have none.
std::vector<std::string> ParentFolders(std::string_view folder);

// The last name of a path; the whole path for the root of a drive and for a share.
std::string_view LastName(std::string_view path);

// The path in the form that the W functions take to the letter: of any length, and with names that Windows would
// otherwise trim or take for a device. A path that is neither on a drive nor on a share, or that has slashes in place
// of backslashes, stays as it is.
std::wstring LiteralPath(std::string_view path);

}  // namespace tarvik
