// A skin component of the tests' own, which the system finds by its class id. It paints nothing, logs the calls, and
// fails when the test asks for it.

#include "startup/SkinComponent.h"

#include <windows.h>

#include <oleauto.h>

#include <array>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/ComObject.h"
#include "platform/Text.h"

namespace tarvik::support {
namespace {

constexpr DISPID loadSkin = 11;
constexpr DISPID applySkin = 12;

std::wstring Variable(const wchar_t* name) {
  std::array<wchar_t, 4096> text{};
  const DWORD length = GetEnvironmentVariableW(name, text.data(), static_cast<DWORD>(text.size()));
  return {text.data(), length};
}

void Note(const std::wstring& entry) {
  std::ofstream(std::filesystem::path(Variable(skinDiary)), std::ios::binary | std::ios::app) << ToUtf8(entry) << '|';
}

bool IsTo(const wchar_t* behaviour) {
  return Variable(skinBehaviour) == behaviour;
}

class SkinControl final : public ComObject<IDispatch> {
 public:
  SkinControl() : ComObject(IID_IDispatch) { Note(L"made"); }
  ~SkinControl() override { Note(L"gone"); }

  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = ComObject::Release();
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    if (count != 1) return E_INVALIDARG;
    const std::wstring name = names[0];
    ids[0] = name == L"LoadSkin"                             ? loadSkin
             : name == L"ApplySkin" && !IsTo(lacksApplySkin) ? applySkin
                                                             : DISPID_UNKNOWN;
    return ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    if ((flags & DISPATCH_METHOD) == 0 || parameters->cArgs != 1) return DISP_E_BADPARAMCOUNT;
    const VARIANT& argument = parameters->rgvarg[0];
    if (id == loadSkin && argument.vt == VT_BSTR) {
      Note(L"LoadSkin " + std::wstring(argument.bstrVal, SysStringLen(argument.bstrVal)));
      return IsTo(failsInLoadSkin) ? DISP_E_EXCEPTION : S_OK;
    }
    if (id == applySkin && argument.vt == VT_I4) {
      Note(L"ApplySkin " + std::to_wstring(argument.lVal));
      return IsTo(failsInApplySkin) ? DISP_E_EXCEPTION : S_OK;
    }
    return DISP_E_TYPEMISMATCH;
  }
};

// The one factory lives as long as the DLL.
class Factory final : public ComObject<IClassFactory> {
 public:
  Factory() : ComObject(IID_IClassFactory) {}

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override {
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    auto* control = new SkinControl;
    control->AddRef();
    const HRESULT result = control->QueryInterface(id, object);
    control->Release();
    return result;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

}  // namespace
}  // namespace tarvik::support

extern "C" __declspec(dllexport) HRESULT DllGetClassObject(REFCLSID classId, REFIID id, void** object) {
  static tarvik::support::Factory factory;
  CLSID own;
  CLSIDFromString(tarvik::support::skinClassId, &own);
  return IsEqualCLSID(classId, own) ? factory.QueryInterface(id, object) : CLASS_E_CLASSNOTAVAILABLE;
}

extern "C" __declspec(dllexport) HRESULT DllCanUnloadNow() {
  return S_FALSE;
}
