#include "search/icons/FileBytes.h"

#include <windows.h>

#include <limits>

#include "platform/Paths.h"

namespace tarvik {

FileBytes::FileBytes(const std::string& path)
    : file_(CreateFileW(LiteralPath(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                        nullptr, OPEN_EXISTING, 0, nullptr)) {
  // Reading from a pipe or a device could block.
  if (file_ && GetFileType(file_.get()) != FILE_TYPE_DISK) file_.reset();
}

FileStamp FileBytes::Stamp() {
  // Querying all file information at once takes Wine several times as long as these two calls.
  LARGE_INTEGER size{};
  FILETIME written{};
  if (!file_ || GetFileSizeEx(file_.get(), &size) == 0 || GetFileTime(file_.get(), nullptr, nullptr, &written) == 0) {
    return {};
  }
  return {.size = static_cast<std::uint64_t>(size.QuadPart),
          .written = std::uint64_t{written.dwHighDateTime} << 32U | written.dwLowDateTime};
}

bool FileBytes::Read(std::uint64_t offset, std::span<std::byte> bytes) {
  if (!file_ || bytes.size() > std::numeric_limits<DWORD>::max()) return false;
  OVERLAPPED position{};
  position.Offset = static_cast<DWORD>(offset);
  position.OffsetHigh = static_cast<DWORD>(offset >> 32U);
  DWORD count = 0;
  return ReadFile(file_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, &position) != 0 &&
         count == bytes.size();
}

}  // namespace tarvik
