#include "startup/SkinRegistration.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "startup/Skin.h"
#include "startup/SkinComponent.h"

namespace tarvik::support {
namespace {

const std::wstring classKey = std::wstring(L"Software\\Classes\\") + Skin::className;
const std::wstring serverKey = std::wstring(L"Software\\Classes\\CLSID\\") + skinClassId;

void SetValue(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, text.c_str(), size), ERROR_SUCCESS);
}

}  // namespace

SkinRegistration::SkinRegistration(const std::wstring& server) {
  SetValue(classKey + L"\\CLSID", nullptr, skinClassId);
  SetValue(serverKey + L"\\InprocServer32", nullptr, server);
  SetValue(serverKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
}

SkinRegistration::~SkinRegistration() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, classKey.c_str());
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, serverKey.c_str());
}

}  // namespace tarvik::support
