#include "search/icons/CutOffCalls.h"

#include <windows.h>

#include <cstdint>

#include "platform/Paths.h"

namespace tarvik {
namespace {

std::uint64_t Number(DWORD high, DWORD low) {
  return std::uint64_t{high} << 32U | low;
}

}  // namespace

std::optional<FileStamp> StampOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) == 0) return std::nullopt;
  return FileStamp{.size = Number(data.nFileSizeHigh, data.nFileSizeLow),
                   .written = Number(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

void CutOffCalls::Remember(const std::string& path, int call) {
  Calls& known = files_[path];
  const auto stamp = StampOf(path);
  if (known.stamp != stamp) known = {.stamp = stamp, .calls = {}};
  known.calls.insert(call);
}

bool CutOffCalls::Has(const std::string& path, int call) const {
  const auto known = files_.find(path);
  return known != files_.end() && known->second.calls.contains(call) && known->second.stamp == StampOf(path);
}

}  // namespace tarvik
