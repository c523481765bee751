#include "base/FolderPath.h"

#include <algorithm>

#include "base/AsciiCase.h"

namespace tarvik {
namespace {

constexpr char separator = '\\';
constexpr std::size_t driveRootLength = 3;  // "C:\"

bool IsNetworkPath(std::string_view path) {
  return path.starts_with("\\\\");
}

bool HasDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':';
}

// The length of the path's root in characters: "C:\" or "\\server\share".
std::size_t RootLength(std::string_view path) {
  if (!IsNetworkPath(path)) return std::min(path.size(), driveRootLength);
  const auto share = path.find(separator, 2);
  if (share == std::string_view::npos) return path.size();
  return std::min(path.size(), path.find(separator, share + 1));
}

bool StartsAtRoot(std::string_view path) {
  return IsNetworkPath(path) || (HasDrive(path) && path.size() >= driveRootLength && path[2] == separator);
}

// Removes ".", ".." and empty names from an absolute path.
std::string Resolve(const std::string& path) {
  const std::size_t root = RootLength(path);
  std::vector<std::string_view> names;
  for (std::size_t start = root; start < path.size();) {
    const std::size_t end = std::min(path.size(), path.find(separator, start));
    const std::string_view name = std::string_view(path).substr(start, end - start);
    if (name == ".." && !names.empty()) names.pop_back();
    if (!name.empty() && name != "." && name != "..") names.push_back(name);
    start = end + 1;
  }
  std::string resolved = path.substr(0, root);
  for (const std::string_view name : names) resolved = JoinPath(resolved, name);
  return resolved;
}

}  // namespace

std::string TidyFolderPath(std::string_view path) {
  std::string tidy(path);
  std::ranges::replace(tidy, '/', separator);
  if (HasDrive(tidy)) {
    tidy[0] = UpperAscii(tidy[0]);
    if (tidy.size() == 2) tidy += separator;
  }
  if (StartsAtRoot(tidy)) return Resolve(tidy);
  while (tidy.size() > RootLength(tidy) && tidy.ends_with(separator)) tidy.pop_back();
  return tidy;
}

std::string AbsoluteFolderPath(std::string_view path, const std::string& base) {
  std::string tidy = TidyFolderPath(path);
  if (tidy.empty() || HasDrive(tidy) || IsNetworkPath(tidy)) return tidy;
  const std::string start = tidy.starts_with(separator) ? base.substr(0, RootLength(base)) : base;
  return TidyFolderPath(start + separator + tidy);
}

// "\\?\C:\a" is the extended-length form of a path with a drive.
bool IsOnOtherComputer(std::string_view path) {
  constexpr std::string_view longForm = R"(\\?\)";
  return IsNetworkPath(path) && !(path.starts_with(longForm) && HasDrive(path.substr(longForm.size())));
}

std::vector<std::string> FolderChain(const std::string& path) {
  std::vector<std::string> chain;
  std::size_t end = RootLength(path);
  if (end > 0) chain.push_back(path.substr(0, end));
  while (end < path.size()) {
    const auto start = path[end] == separator ? end + 1 : end;
    end = std::min(path.size(), path.find(separator, start));
    chain.push_back(path.substr(0, end));
  }
  return chain;
}

std::string ParentFolder(const std::string& path) {
  const std::vector<std::string> chain = FolderChain(path);
  return chain.size() < 2 ? path : chain[chain.size() - 2];
}

std::string FolderName(const std::string& path) {
  if (path.size() <= RootLength(path)) return path;
  return path.substr(path.find_last_of(separator) + 1);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.empty() && !path.ends_with(separator)) path += separator;
  return path.append(name);
}

}  // namespace tarvik
