#pragma once

#include <windows.h>

#include <objbase.h>

namespace tarvik {

// A use of COM on this thread, for as long as the object lives. The system counts them, so that nobody else's ends
// with it.
class ComUse {
 public:
  ComUse() : result_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
  ~ComUse() {
    if (SUCCEEDED(result_)) CoUninitialize();
  }
  ComUse(const ComUse&) = delete;
  ComUse& operator=(const ComUse&) = delete;

 private:
  HRESULT result_;
};

}  // namespace tarvik
