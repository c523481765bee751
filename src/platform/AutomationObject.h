#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>

#include "base/NonCopyable.h"
#include "platform/ComUse.h"

namespace tarvik {

// The single argument of a call.
class AutomationArgument : NonCopyable {
 public:
  explicit AutomationArgument(const std::wstring& text);
  // A window handle is passed as a 32-bit number: handles have no more significant bits.
  explicit AutomationArgument(HWND window);
  ~AutomationArgument() { clear_(&value_); }

  VARIANT* Value() { return &value_; }

 private:
  decltype(&::VariantClear) clear_;
  VARIANT value_{};
};

// A COM object whose methods are called by name (late binding), so its class need not be known when the program is
// built. The object is released with this one. Throws MissingFunctionError on a system without COM.
class AutomationObject : NonCopyable {
 public:
  // If the class provides no object, every call fails.
  explicit AutomationObject(const CLSID& classId);
  ~AutomationObject();

  // Calls the method with one argument; returns whether it exists and succeeds.
  bool Call(const wchar_t* method, AutomationArgument argument);

 private:
  ComUse use_;  // ends after the object is released
  IDispatch* object_ = nullptr;
};

}  // namespace tarvik
