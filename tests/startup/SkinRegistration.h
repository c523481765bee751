#pragma once

#include <string>

namespace tarvik::testing {

// A skin component, known to the system for as long as the object lives: for all programs, so that only one test at a
// time may have it. `server` is the component's DLL.
class SkinRegistration {
 public:
  explicit SkinRegistration(const std::wstring& server);
  ~SkinRegistration();
  SkinRegistration(const SkinRegistration&) = delete;
  SkinRegistration& operator=(const SkinRegistration&) = delete;
};

}  // namespace tarvik::testing
