#pragma once

#include <string>

#include "base/NonCopyable.h"

namespace tarvik::support {

// A skin component, known to the system for as long as the object lives: for all programs, so that only one test at a
// time may have it. `server` is the component's DLL.
class SkinRegistration : NonCopyable {
 public:
  explicit SkinRegistration(const std::wstring& server);
  ~SkinRegistration();
};

}  // namespace tarvik::support
