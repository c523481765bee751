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

FileStamp CutOffCalls::StateOf(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) == 0) return {};
  return {.size = Number(data.nFileSizeHigh, data.nFileSizeLow),
          .written = Number(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime)};
}

void CutOffCalls::Remember(const std::string& path, int call) {
  Calls& known = files_[path];
  const FileStamp state = StateOf(path);
  if (known.state != state) known = {.state = state, .calls = {}};
  known.calls.insert(call);
}

bool CutOffCalls::Has(const std::string& path, int call) const {
  const auto known = files_.find(path);
  return known != files_.end() && known->second.calls.contains(call) && known->second.state == StateOf(path);
}

}  // namespace tarvik
