// Calls each system function that is looked up at run time: the results show which function it was.

#include "platform/SystemFunctions.h"

#include <cderr.h>
#include <gtest/gtest.h>
#include <shlobj.h>

#include <thread>

#include "platform/ComUse.h"
#include "platform/IconFiles.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// A record with a size that no version of the dialogs accepts.
template <typename Function>
DWORD ErrorOfDialog(const Function& show) {
  OPENFILENAMEA record{};
  record.lStructSize = 1;
  EXPECT_EQ(show(&record), FALSE);
  return CommDlgExtendedError();
}

TEST(SystemFunctions, AskForAFile) {
  EXPECT_EQ(ErrorOfDialog(late::GetOpenFileNameA), static_cast<DWORD>(CDERR_STRUCTSIZE));
  EXPECT_EQ(ErrorOfDialog(late::GetSaveFileNameA), static_cast<DWORD>(CDERR_STRUCTSIZE));
  EXPECT_NE(late::GetOpenFileNameA.Get(), late::GetSaveFileNameA.Get());
}

TEST(SystemFunctions, SayWhatADriveIsConnectedTo) {
  wchar_t share[64];
  DWORD length = 64;
  EXPECT_EQ(late::WNetGetConnectionW(L"C:", share, &length), static_cast<DWORD>(ERROR_NOT_CONNECTED));
}

TEST(SystemFunctions, MakeObjectsOfTheSystem) {
  // If the program already uses COM, a further use reports that.
  const ComUse use;
  EXPECT_EQ(late::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE), S_FALSE);
  late::CoUninitialize();

  CLSID found;
  EXPECT_EQ(late::CLSIDFromProgID(L"Brindle.NoSuchClass", &found), CO_E_CLASSSTRING);
  void* link = nullptr;
  ASSERT_EQ(late::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, &link), S_OK);
  static_cast<IUnknown*>(link)->Release();
}

// A thread can use COM in another mode only after every earlier use has ended.
TEST(SystemFunctions, EndTheUseOfObjects) {
  std::thread([] {
    {
      const ComUse use;
      EXPECT_EQ(late::CoInitializeEx(nullptr, COINIT_MULTITHREADED), RPC_E_CHANGED_MODE);
    }
    EXPECT_EQ(late::CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
    late::CoUninitialize();
  }).join();
}

TEST(SystemFunctions, MakeAndClearValues) {
  VARIANT value{};
  value.vt = VT_BSTR;
  value.bstrVal = late::SysAllocStringLen(L"skin", 3);
  ASSERT_NE(value.bstrVal, nullptr);
  EXPECT_STREQ(value.bstrVal, L"ski");
  EXPECT_EQ(late::VariantClear(&value), S_OK);
  EXPECT_EQ(value.vt, VT_EMPTY);
}

TEST(SystemFunctions, TakeIconsOutOfFiles) {
  const support::TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.ico", support::IconFileOf(0x0000FF));
  EXPECT_EQ(late::ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0), 1U);
}

TEST(SystemFunctions, OpenFiles) {
  const support::TemporaryFolder folder;
  const std::wstring path = ToWide(folder.In("none.html"));
  const auto answer =
      reinterpret_cast<INT_PTR>(late::ShellExecuteW(nullptr, L"open", path.c_str(), nullptr, nullptr, 0));
  EXPECT_EQ(answer, SE_ERR_FNF);
}

}  // namespace
}  // namespace tarvik
