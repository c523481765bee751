#include "platform/Text.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tarvik {
namespace {

TEST(Text, GoesToWideAndBack) {
  EXPECT_EQ(ToWide("aé图😀"), L"aé图😀");
  EXPECT_EQ(ToUtf8(L"aé图😀"), "aé图😀");
  EXPECT_EQ(ToWide(""), L"");
  EXPECT_EQ(ToUtf8(L""), "");
}

TEST(Text, ReplacesWhatIsNoText) {
  EXPECT_EQ(ToWide("a\xFFz"), L"a\uFFFDz");
  const std::wstring half = {L'a', static_cast<wchar_t>(0xD83D), L'z'};
  EXPECT_EQ(ToUtf8(half), "a\uFFFDz");
}

TEST(Text, IsUtf8ForTheSystemToo) {
  EXPECT_EQ(GetACP(), static_cast<UINT>(CP_UTF8));
}

}  // namespace
}  // namespace tarvik
