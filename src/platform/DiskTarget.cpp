#include "platform/DiskTarget.h"

#include <windows.h>

#include "platform/Paths.h"

namespace tarvik {

bool DiskTarget::DeleteExistingTarget(const std::string& path) {
  const std::wstring systemPath = SystemPath(path);
  const DWORD attributes = GetFileAttributesW(systemPath.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    // A link that leads nowhere has no attributes, and is in the way all the same.
    return DeleteFileW(systemPath.c_str()) != 0 || GetLastError() == ERROR_FILE_NOT_FOUND;
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return false;
  SetFileAttributesW(systemPath.c_str(), FILE_ATTRIBUTE_NORMAL);
  if (DeleteFileW(systemPath.c_str()) != 0) return true;
  SetFileAttributesW(systemPath.c_str(), attributes);
  return false;
}

std::uint64_t FileLength(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) == 0) return 0;
  ULARGE_INTEGER length;
  length.LowPart = data.nFileSizeLow;
  length.HighPart = data.nFileSizeHigh;
  return length.QuadPart;
}

}  // namespace tarvik
