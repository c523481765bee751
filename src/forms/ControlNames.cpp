#include "forms/ControlNames.h"

#include <windows.h>

#include <commctrl.h>
#include <oleacc.h>

#include <array>

#include "base/NonCopyable.h"
#include "platform/ComUse.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// CLSID_AccPropServices, IID_IAccPropServices and PROPID_ACC_NAME, which no available library defines.
constexpr GUID serviceClass{0xB5F8350B, 0x0548, 0x48B1, {0xA6, 0xEE, 0x88, 0xBD, 0x00, 0xB4, 0xA5, 0xE7}};
constexpr GUID serviceInterface{0x6E26E776, 0x04F0, 0x495D, {0x80, 0xE4, 0x33, 0x30, 0x35, 0x2E, 0x31, 0x69}};
constexpr GUID nameProperty{0x608D3DF8, 0x8128, 0x4AA7, {0xA4, 0x28, 0xF5, 0x5E, 0x49, 0x26, 0x72, 0x91}};

// The system's annotation service, which overrides the names of windows and their parts. If it is missing, nothing
// happens.
class NameService : NonCopyable {
 public:
  NameService() {
    void* object = nullptr;
    if (SUCCEEDED(late::CoCreateInstance(serviceClass, nullptr, CLSCTX_INPROC_SERVER, serviceInterface, &object)))
      service_ = static_cast<IAccPropServices*>(object);
  }
  ~NameService() {
    if (service_ != nullptr) service_->Release();
  }

  // `part` is 0 for the window itself, otherwise a part's number, counted from 1.
  void Name(HWND window, DWORD part, const std::wstring& name) const {
    if (service_ == nullptr || name.empty()) return;
    service_->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), part, nameProperty, name.c_str());
  }

 private:
  ComUse use_;  // ends after the service's release
  IAccPropServices* service_ = nullptr;
};

bool IsLabel(HWND window) {
  std::array<wchar_t, 16> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  return lstrcmpiW(name.data(), L"Static") == 0;
}

// A label's text without the marker of its access key.
std::wstring TextOf(HWND label) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(label)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(label, text.data(), static_cast<int>(text.size()))));
  std::erase(text, L'&');
  return text;
}

// Called for a message that a system without COM cannot send, so nothing here throws in practice; no caller could catch
// it.
void NameOnce(HWND window) noexcept {
  try {
    NameService().Name(window, CHILDID_SELF, TextOf(GetWindow(window, GW_HWNDPREV)));
  } catch (const RuntimeError&) {
    return;
  }
}

// Subclasses a control after an invisible label; `named` is 1 once the control has its name.
LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR named) {
  if (message == WM_GETOBJECT && named == 0) {
    SetWindowSubclass(window, Procedure, id, 1);
    NameOnce(window);
  }
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, Procedure, id);
  return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

void NameControls(HWND window) {
  for (HWND item = GetWindow(window, GW_CHILD); item != nullptr; item = GetWindow(item, GW_HWNDNEXT)) {
    const bool hidden = (GetWindowLongPtrW(item, GWL_STYLE) & WS_VISIBLE) == 0;
    const HWND control = GetWindow(item, GW_HWNDNEXT);
    if (hidden && IsLabel(item) && control != nullptr && !IsLabel(control)) SetWindowSubclass(control, Procedure, 0, 0);
  }
}

}  // namespace tarvik
