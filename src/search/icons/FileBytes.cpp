#include "search/icons/FileBytes.h"

#include <windows.h>

#include <limits>

#include "platform/Paths.h"

namespace tarvik {

FileBytes::FileBytes(const std::string& path)
    : file_(CreateFileW(LiteralPath(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                        nullptr, OPEN_EXISTING, 0, nullptr)) {
  // A pipe or a device would let its reader wait.
  if (file_ && GetFileType(file_.get()) != FILE_TYPE_DISK) file_.reset();
}

FileStamp FileBytes::Stamp() {
  BY_HANDLE_FILE_INFORMATION information{};
  if (!file_ || GetFileInformationByHandle(file_.get(), &information) == 0) return {};
  const auto joined = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; };
  return {joined(information.nFileSizeHigh, information.nFileSizeLow),
          joined(information.ftLastWriteTime.dwHighDateTime, information.ftLastWriteTime.dwLowDateTime)};
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
