#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

// Folder paths as folder lists show them: UTF-8, "\" between names, no trailing one except at a drive root ("C:\").

// The path in that form: drive letter in upper case, "/" replaced by "\", a trailing "\" kept only at a drive root, and
// in an absolute path no "." or "..": these are resolved textually, and ".." at the root stays at the root.
std::string TidyFolderPath(std::string_view path);

// The absolute path in that form: a relative one starts at `base`, or at its root if it starts with "\". An empty path
// stays empty.
std::string AbsoluteFolderPath(std::string_view path, const std::string& base);

// Whether the path names a computer: a share ("\\server\share"), also in its extended-length form ("\\?\UNC\..."), or
// one of its devices. Reading there means contacting that computer.
bool IsOnOtherComputer(std::string_view path);

// The folders from the root down to `path`, itself included: "C:\", "C:\a", "C:\a\b".
std::vector<std::string> FolderChain(const std::string& path);

// The folder that contains `path`; the path itself if it is a root.
std::string ParentFolder(const std::string& path);

// The last name of a path, or the path itself if it is a root.
std::string FolderName(const std::string& path);

// The path of a folder or file in `folder`: no second "\" after a root.
std::string JoinPath(std::string_view folder, std::string_view name);

}  // namespace tarvik
