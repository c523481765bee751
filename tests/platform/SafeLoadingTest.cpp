#include "platform/SafeLoading.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "base/FolderPath.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

bool Loads(const wchar_t* name) {
  const HMODULE module = LoadLibraryW(name);
  if (module != nullptr) FreeLibrary(module);
  return module != nullptr;
}

// The current folder contains such a library, so searching that folder would find it.
TEST(SafeLoading, LooksInTheSystemFolderOnly) {
  const support::TemporaryFolder folder;
  const std::string library = JoinPath(SystemFolder(), "version.dll");
  ASSERT_NE(CopyFileW(ToWide(library).c_str(), ToWide(folder.In("planted.dll")).c_str(), TRUE), 0);
  std::wstring former(MAX_PATH, L'\0');
  former.resize(GetCurrentDirectoryW(MAX_PATH, former.data()));
  ASSERT_NE(SetCurrentDirectoryW(ToWide(folder.Path()).c_str()), 0);

  EXPECT_TRUE(Loads(L"planted.dll"));
  LoadLibrariesFromSystemFolderOnly();
  EXPECT_FALSE(Loads(L"planted.dll"));
  EXPECT_TRUE(Loads(L"version.dll"));
  SetCurrentDirectoryW(former.c_str());
}

}  // namespace
}  // namespace tarvik
