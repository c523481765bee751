#include "forms/AccessiblePicture.h"

#include <windows.h>

#include <oleacc.h>

#include <exception>
#include <new>

#include "base/NonCopyable.h"
#include "forms/PictureBox.h"
#include "platform/ComUse.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// IID_IAccessible, which no available library defines.
constexpr GUID accessibleInterface{0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

constexpr LONG itemNumber = 1;

VARIANT Number(LONG value) {
  VARIANT variant{};
  variant.vt = VT_I4;
  variant.lVal = value;
  return variant;
}

// The interface has no virtual destructor; the object is deleted through its own type.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// The list itself is child 0 and the current item child 1. Everything else, such as parent and state of the list, is
// answered by the system's own object for the window.
class AccessiblePicture final : public IAccessible, NonCopyable {
 public:
  // Takes ownership of `base`.
  AccessiblePicture(HWND window, const PictureContent* (*content)(HWND), IAccessible* base)
      : window_(window), content_(content), base_(base) {}

  // IUnknown
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (wanted != IID_IUnknown && wanted != IID_IDispatch && wanted != accessibleInterface) return E_NOINTERFACE;
    AddRef();
    *object = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&uses_)); }
  ULONG STDMETHODCALLTYPE Release() override {
    const LONG left = InterlockedDecrement(&uses_);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

  // IDispatch
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return base_->GetTypeInfoCount(count); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT info, LCID language, ITypeInfo** type) override {
    return base_->GetTypeInfo(info, language, type);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language, DISPID* ids) override {
    return base_->GetIDsOfNames(id, names, count, language, ids);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID /*member*/, REFIID /*id*/, LCID /*language*/, WORD /*flags*/,
                                   DISPPARAMS* /*parameters*/, VARIANT* /*result*/, EXCEPINFO* /*exception*/,
                                   UINT* /*wrong*/) override {
    return DISP_E_MEMBERNOTFOUND;
  }

  // IAccessible
  HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override { return base_->get_accParent(parent); }
  HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override {
    if (count == nullptr) return E_POINTER;
    *count = CurrentItem() ? itemNumber : 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accChild(VARIANT /*child*/, IDispatch** object) override {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;  // the item is a part of this object
    return S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
  HRESULT STDMETHODCALLTYPE get_accValue(VARIANT /*child*/, BSTR* text) override { return None(text); }
  HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT /*child*/, BSTR* text) override { return None(text); }
  HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override {
    if (role == nullptr) return E_POINTER;
    *role = Number(IsItem(child) ? ROLE_SYSTEM_LISTITEM : ROLE_SYSTEM_LIST);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override {
    if (!IsItem(child)) return base_->get_accState(child, state);
    if (state == nullptr) return E_POINTER;
    *state = Number(STATE_SYSTEM_SELECTABLE | (IsSelected() ? STATE_SYSTEM_SELECTED : 0));
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT /*child*/, BSTR* text) override { return None(text); }
  HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT /*child*/, LONG* /*topic*/) override {
    return None(file);
  }
  HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT /*child*/, BSTR* text) override { return None(text); }
  HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) override { return base_->get_accFocus(child); }
  HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) override {
    if (children == nullptr) return E_POINTER;
    *children = IsSelected() ? Number(itemNumber) : VARIANT{};
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT /*child*/, BSTR* text) override { return None(text); }
  HRESULT STDMETHODCALLTYPE accSelect(LONG /*flags*/, VARIANT /*child*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
  HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) override {
    return base_->accNavigate(direction, start, end);
  }
  HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* child) override;
  HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT /*child*/) override { return DISP_E_MEMBERNOTFOUND; }
  HRESULT STDMETHODCALLTYPE put_accName(VARIANT /*child*/, BSTR /*name*/) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE put_accValue(VARIANT /*child*/, BSTR /*value*/) override { return E_NOTIMPL; }

 private:
  ~AccessiblePicture() { base_->Release(); }  // called by the last Release

  static bool IsItem(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == itemNumber; }
  static HRESULT None(BSTR* text) {
    if (text == nullptr) return E_POINTER;
    *text = nullptr;
    return S_FALSE;
  }
  // Also empty if memory runs out: no exception may leave an object that other processes use.
  std::optional<PictureContent::CurrentPart> CurrentItem() const noexcept try {
    const PictureContent* content = content_(window_);
    return content != nullptr ? content->currentItem() : std::nullopt;
  } catch (const std::exception&) {
    return std::nullopt;
  }

  bool IsSelected() const noexcept {
    const auto item = CurrentItem();
    return item && item->selected;
  }

  // The current item's rectangle on the screen.
  std::optional<RECT> ItemBounds() const noexcept;

  HWND window_;
  const PictureContent* (*content_)(HWND);
  IAccessible* base_;
  LONG uses_ = 1;
};

#pragma GCC diagnostic pop

HRESULT AccessiblePicture::get_accName(VARIANT child, BSTR* name) try {
  if (name == nullptr) return E_POINTER;
  *name = nullptr;
  const PictureContent* content = content_(window_);
  if (content == nullptr) return CO_E_OBJNOTCONNECTED;
  std::wstring text;
  if (!IsItem(child))
    text = ToWide(content->name());
  else if (const auto item = content->currentItem())
    text = ToWide(item->name);
  else
    return S_FALSE;
  *name = late::SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  return *name != nullptr ? S_OK : E_OUTOFMEMORY;
} catch (const std::exception&) {
  return E_OUTOFMEMORY;
}

std::optional<RECT> AccessiblePicture::ItemBounds() const noexcept {
  const auto item = CurrentItem();
  if (!item) return std::nullopt;
  RECT bounds = PictureBox::BoundsInWindow(window_, item->bounds);
  MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

HRESULT AccessiblePicture::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
  if (!IsItem(child)) return base_->accLocation(left, top, width, height, child);
  if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) return E_POINTER;
  const auto bounds = ItemBounds();
  if (!bounds) return S_FALSE;
  *left = bounds->left;
  *top = bounds->top;
  *width = bounds->right - bounds->left;
  *height = bounds->bottom - bounds->top;
  return S_OK;
}

HRESULT AccessiblePicture::accHitTest(LONG left, LONG top, VARIANT* child) {
  if (child == nullptr) return E_POINTER;
  const auto bounds = ItemBounds();
  if (!bounds || PtInRect(&*bounds, {left, top}) == FALSE) return base_->accHitTest(left, top, child);
  *child = Number(itemNumber);
  return S_OK;
}

}  // namespace

LRESULT AnswerForPicture(HWND window, WPARAM wParam, const PictureContent* (*content)(HWND window)) {
  const auto makeBase = late::CreateStdAccessibleObject.Find();
  const auto answer = late::LresultFromObject.Find();
  if (makeBase == nullptr || answer == nullptr) return 0;
  // Other processes use the returned object for as long as this one runs.
  static const ComUse use;
  void* base = nullptr;
  if (FAILED(makeBase(window, OBJID_CLIENT, accessibleInterface, &base))) return 0;
  auto* const object = new (std::nothrow) AccessiblePicture(window, content, static_cast<IAccessible*>(base));
  if (object == nullptr) return 0;
  const LRESULT result = answer(accessibleInterface, wParam, object);
  object->Release();
  return result;
}

void TellCurrentItem(HWND window, bool selected) {
  const DWORD event = selected ? EVENT_OBJECT_SELECTION : EVENT_OBJECT_SELECTIONREMOVE;
  NotifyWinEvent(event, window, OBJID_CLIENT, itemNumber);
  NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, window, OBJID_CLIENT, itemNumber);
}

}  // namespace tarvik
