#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

// Folder paths as folder lists show them: UTF-8, "\" between names, none at the end but a drive root's ("C:\").

// The path in that form: drive letter in upper case, "/" turned into "\", a trailing "\" kept at a drive root alone,
// and in a path from a root no "." or "..": such parts are resolved by the names alone, and ".." at the root stays
// there.
std::string TidyFolderPath(std::string_view path);

// The path in that form, from a root: one without is taken to start at `base`, or at its root if it starts with "\".
// An empty path stays empty.
std::string AbsoluteFolderPath(std::string_view path, const std::string& base);

// Whether the path names a computer: a share of it ("\\server\share"), also in its longer form ("\\?\UNC\..."), or a
// device of its own. To read there is to contact that computer.
bool IsOnOtherComputer(std::string_view path);

// The folders from the root down to `path`, itself included: "C:\", "C:\a", "C:\a\b".
std::vector<std::string> FolderChain(const std::string& path);

// The folder that holds `path`; the path itself where it is a root.
std::string ParentFolder(const std::string& path);

// The last name of a path, or the path where it is a root.
std::string FolderName(const std::string& path);

// A folder's or file's path in `folder`: no second "\" behind a root.
std::string JoinPath(std::string_view folder, std::string_view name);

}  // namespace tarvik
