#include "startup/Skin.h"

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <utility>

#include "base/NonCopyable.h"
#include "platform/ComUse.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr const char* skinFile = "\\Skins\\Galaxy.skn";

// The single argument of a call.
class Argument : NonCopyable {
 public:
  explicit Argument(const std::wstring& text) {
    value_.vt = VT_BSTR;
    value_.bstrVal = late::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  // A window handle is passed as a 32-bit number: handles have no more significant bits.
  explicit Argument(HWND window) {
    value_.vt = VT_I4;
    value_.lVal = static_cast<LONG>(reinterpret_cast<LONG_PTR>(window));
  }
  ~Argument() { clear_(&value_); }

  VARIANT* Value() { return &value_; }

 private:
  decltype(&::VariantClear) clear_ = late::VariantClear.Get();  // looked up in advance: a destructor must not throw
  VARIANT value_{};
};

// One object of the component.
class Component : NonCopyable {
 public:
  explicit Component(const CLSID& classId) {
    void* object = nullptr;
    const DWORD context = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER;
    if (SUCCEEDED(late::CoCreateInstance(classId, nullptr, context, IID_IDispatch, &object))) {
      object_ = static_cast<IDispatch*>(object);
    }
  }
  ~Component() {
    if (object_ != nullptr) object_->Release();
  }

  // Calls the method with one argument; returns whether it exists and succeeds.
  bool Call(const wchar_t* method, Argument argument) {
    if (object_ == nullptr) return false;
    std::wstring name(method);
    LPOLESTR names = name.data();
    DISPID id = 0;
    if (FAILED(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id))) return false;
    DISPPARAMS parameters{argument.Value(), nullptr, 1, 0};
    return SUCCEEDED(
        object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr));
  }

 private:
  ComUse use_;  // ends after the object is released
  IDispatch* object_ = nullptr;
};

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

Skin::Skin(const std::string& folder) : path_(ToWide(folder + skinFile)) {}

const std::optional<CLSID>& Skin::Class() {
  if (!asked_) {
    CLSID found;
    if (SUCCEEDED(late::CLSIDFromProgID(className, &found))) class_ = found;
    asked_ = true;
  }
  return class_;
}

bool Skin::Apply(Form& form) {
  if (!IsFile(path_)) return false;
  try {
    return Paint(form);
  } catch (const MissingFunctionError&) {
    return false;  // without COM there is no component either
  }
}

bool Skin::Paint(Form& form) {
  const ComUse use;
  const std::optional<CLSID>& id = Class();
  if (!id) return false;
  auto component = std::make_shared<Component>(*id);
  if (!component->Call(L"LoadSkin", Argument(path_)) || !component->Call(L"ApplySkin", Argument(form.Window()))) {
    return false;
  }
  form.Skn = std::move(component);
  return true;
}

}  // namespace tarvik
