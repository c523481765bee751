#include "platform/Paths.h"

#include <windows.h>

#include <algorithm>

#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr DWORD pathBufferSize = 260;
constexpr DWORD longestWidePath = 32768;  // no path is longer

bool StartsAtDriveRoot(std::string_view path) {
  return path.size() >= 3 && path[1] == ':' && path[2] == '\\';
}

bool StartsAtShare(std::string_view path) {
  return path.starts_with(R"(\\)") && !path.starts_with(R"(\\?\)") && !path.starts_with(R"(\\.\)");
}

// The length of what a path cannot do without: "C:\", or "\\server\share".
std::size_t RootLength(std::string_view path) {
  if (StartsAtDriveRoot(path)) return 3;
  if (!StartsAtShare(path)) return 0;
  const std::size_t server = path.find('\\', 2);
  return server == std::string_view::npos ? path.size() : std::min(path.find('\\', server + 1), path.size());
}

// What a call wrote into a buffer: as many characters as it said, never more than there are.
std::string Written(const std::string& buffer, UINT count) {
  return buffer.substr(0, std::min<std::size_t>(count, buffer.size()));
}

}  // namespace

std::string ProgramPath() {
  std::wstring path(longestWidePath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), longestWidePath));
  return ToUtf8(path);
}

std::string ProgramFolder() {
  const std::vector<std::string> parents = ParentFolders(ProgramPath());
  return parents.empty() ? std::string() : parents.back();
}

std::string SystemFolder() {
  std::string buffer(pathBufferSize, ' ');
  const UINT count = GetSystemDirectoryA(buffer.data(), pathBufferSize);
  return Written(buffer, count);
}

std::string TempFolder() {
  std::string buffer(pathBufferSize, ' ');
  const DWORD count = GetTempPathA(pathBufferSize, buffer.data());
  return Written(buffer, count);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && !path.ends_with('\\')) path += '\\';
  return path.append(name);
}

std::vector<std::string> ParentFolders(std::string_view folder) {
  std::vector<std::string> parents;
  const std::size_t root = RootLength(folder);
  if (root == 0 || folder.size() <= root) return parents;

  parents.emplace_back(folder.substr(0, root));
  std::size_t separator = folder.find('\\', root + (folder[root] == '\\' ? 1 : 0));
  while (separator != std::string_view::npos && separator + 1 < folder.size()) {
    parents.emplace_back(folder.substr(0, separator));
    separator = folder.find('\\', separator + 1);
  }
  return parents;
}

std::string_view LastName(std::string_view path) {
  if (path.size() <= RootLength(path)) return path;
  if (path.ends_with('\\')) path.remove_suffix(1);
  return path.substr(path.rfind('\\') + 1);
}

std::wstring LiteralPath(std::string_view path) {
  if (path.find('/') != std::string_view::npos) return ToWide(path);
  if (StartsAtDriveRoot(path)) return LR"(\\?\)" + ToWide(path);
  if (StartsAtShare(path)) return LR"(\\?\UNC\)" + ToWide(path.substr(2));
  return ToWide(path);
}

}  // namespace tarvik
