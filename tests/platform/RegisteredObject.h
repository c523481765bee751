#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include "platform/ComObject.h"

namespace tarvik::support {

// While it lives, the system gives out `object` in this process when an object of `classId` is wanted.
class RegisteredObject final : public ComObject<IClassFactory> {
 public:
  RegisteredObject(REFCLSID classId, IUnknown& object) : ComObject(IID_IClassFactory), object_(object) {
    EXPECT_EQ(CoRegisterClassObject(classId, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &number_), S_OK);
  }
  ~RegisteredObject() override { CoRevokeClassObject(number_); }

  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
    return object_.QueryInterface(id, object);
  }
  HRESULT STDMETHODCALLTYPE LockServer(WINBOOL) override { return S_OK; }

 private:
  IUnknown& object_;
  DWORD number_ = 0;
};

}  // namespace tarvik::support
