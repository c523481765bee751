#pragma once

#include <windows.h>

#include <objbase.h>

#include "base/NonCopyable.h"
#include "platform/SystemFunctions.h"

namespace tarvik {

// Initialises COM on this thread for as long as the object lives. The system counts the uses, so other users of COM are
// not affected. The constructor throws MissingFunctionError on a system without COM.
class ComUse : NonCopyable {
 public:
  ComUse()
      : end_(late::CoUninitialize.Get()),
        result_(late::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
  ~ComUse() {
    if (SUCCEEDED(result_)) end_();
  }

 private:
  decltype(&::CoUninitialize) end_;  // looked up in advance: a destructor must not throw
  HRESULT result_;
};

}  // namespace tarvik
