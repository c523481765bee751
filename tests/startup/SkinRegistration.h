#pragma once

#include <string>

#include "base/NonCopyable.h"

namespace tarvik::support {

// A registered skin component while the object lives. The registration applies to all programs, so only one test at a
// time may have it. `server` is the component's DLL.
class SkinRegistration : NonCopyable {
 public:
  explicit SkinRegistration(const std::wstring& server);
  ~SkinRegistration();
};

}  // namespace tarvik::support
