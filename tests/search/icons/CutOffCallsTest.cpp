#include "search/icons/CutOffCalls.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/Handles.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

using support::TemporaryFolder;

TEST(CutOffCalls, RemembersEachCallOnEachFile) {
  const TemporaryFolder folder;
  const std::string one = folder.MakeFile("图.dll");
  const std::string other = folder.MakeFile("b.dll");
  CutOffCalls calls;
  EXPECT_FALSE(calls.Has(one, 0));
  calls.Remember(one, 0);
  calls.Remember(one, 7);
  EXPECT_TRUE(calls.Has(one, 0));
  EXPECT_TRUE(calls.Has(one, 7));
  EXPECT_FALSE(calls.Has(one, 1));
  EXPECT_FALSE(calls.Has(other, 0));
}

TEST(CutOffCalls, TakesAFileOfAnotherSizeOrTimeForAnother) {
  const TemporaryFolder folder;
  const std::string path = folder.MakeFile("a.dll", "one");
  CutOffCalls calls;
  const auto replace = [&](const char* text, DWORD time) {
    DeleteFileW(ToWide(path).c_str());
    folder.MakeFile("a.dll", text);
    const FileHandle file(
        CreateFileW(ToWide(path).c_str(), FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    const FILETIME written{.dwLowDateTime = 0, .dwHighDateTime = time};
    EXPECT_NE(SetFileTime(file.get(), nullptr, nullptr, &written), 0);
  };
  constexpr DWORD time = 0x01D00000;
  replace("one", time);
  calls.Remember(path, 0);
  replace("one", time);
  EXPECT_TRUE(calls.Has(path, 0));
  replace("three", time);
  EXPECT_FALSE(calls.Has(path, 0));
  replace("one", time + 1);
  EXPECT_FALSE(calls.Has(path, 0));
  calls.Remember(path, 5);
  EXPECT_FALSE(calls.Has(path, 0)) << "of the file before";
  EXPECT_TRUE(calls.Has(path, 5));
}

}  // namespace
}  // namespace tarvik
