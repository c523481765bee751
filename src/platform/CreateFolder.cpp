#include "platform/CreateFolder.h"

#include <windows.h>

#include "base/FolderPath.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// The limit for a folder is lower than for a file, to leave space for a short name.
constexpr std::size_t maxPlainPath = MAX_PATH - 13;

constexpr std::size_t driveColon = 1;

std::wstring FullPath(const std::wstring& path) {
  const DWORD length = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(length, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), length, full.data(), nullptr));
  return full;
}

}  // namespace

std::optional<std::string> CreateFolder(const std::string& path) {
  const std::wstring full = FullPath(ToWide(path));
  // A colon after the drive's is not allowed in a folder name, and not every system rejects it.
  if (full.find(L':', driveColon + 1) != std::wstring::npos) return std::nullopt;
  const bool plain = full.size() <= maxPlainPath;
  if (CreateDirectoryW(plain ? full.c_str() : LiteralPath(ToUtf8(full)).c_str(), nullptr) == 0) return std::nullopt;
  return TidyFolderPath(ToUtf8(full));
}

}  // namespace tarvik
