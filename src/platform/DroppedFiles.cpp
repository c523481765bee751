#include "platform/DroppedFiles.h"

#include "base/Finally.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"

namespace tarvik {

std::string TakeFirstDropped(HDROP dropped) {
  const auto release = late::DragFinish.Get();
  const auto query = late::DragQueryFileW.Get();
  const Finally releases([release, dropped] { release(dropped); });
  const UINT length = query(dropped, 0, nullptr, 0);
  std::wstring path(length + std::size_t{1}, L'\0');  // with the terminating zero that the call appends
  path.resize(query(dropped, 0, path.data(), length + 1));
  return ToUtf8(path);
}

}  // namespace tarvik
