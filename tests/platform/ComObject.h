#pragma once

#include <windows.h>

#include <unknwn.h>

#include "base/NonCopyable.h"

namespace tarvik::support {

// What all COM objects of the tests have in common: an object with one interface, `own`, which counts its references
// and is owned by who created it.
template <class Interface>
class ComObject : public Interface, NonCopyable {
 public:
  explicit ComObject(REFIID own) : own_(own) {}
  virtual ~ComObject() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, own_);
    *object = known ? static_cast<Interface*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override { return --references_; }

  ULONG References() const { return references_; }

 private:
  IID own_;
  ULONG references_ = 0;
};

}  // namespace tarvik::support
