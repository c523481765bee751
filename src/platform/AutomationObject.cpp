#include "platform/AutomationObject.h"

#include <windows.h>

#include <oleauto.h>

#include "platform/SystemFunctions.h"

namespace tarvik {

// VariantClear is looked up in advance: a destructor must not throw.
AutomationArgument::AutomationArgument(const std::wstring& text) : clear_(late::VariantClear.Get()) {
  value_.vt = VT_BSTR;
  value_.bstrVal = late::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

AutomationArgument::AutomationArgument(HWND window) : clear_(late::VariantClear.Get()) {
  value_.vt = VT_I4;
  value_.lVal = static_cast<LONG>(reinterpret_cast<LONG_PTR>(window));
}

AutomationObject::AutomationObject(const CLSID& classId) {
  void* object = nullptr;
  const DWORD context = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER;
  if (SUCCEEDED(late::CoCreateInstance(classId, nullptr, context, IID_IDispatch, &object))) {
    object_ = static_cast<IDispatch*>(object);
  }
}

AutomationObject::~AutomationObject() {
  if (object_ != nullptr) object_->Release();
}

bool AutomationObject::Call(const wchar_t* method, AutomationArgument argument) {
  if (object_ == nullptr) return false;
  std::wstring name(method);
  LPOLESTR names = name.data();
  DISPID id = 0;
  if (FAILED(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return false;
  DISPPARAMS parameters{argument.Value(), nullptr, 1, 0};
  return SUCCEEDED(
      object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr));
}

}  // namespace tarvik
