#include "platform/Clipboard.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "platform/GdiObjects.h"
#include "platform/Handles.h"
#include "platform/PastedPicture.h"

namespace tarvik {
namespace {

using support::Paste;
using support::PastedPicture;

TEST(Clipboard, TakesACopyOfThePicture) {
  Surface picture(3, 2, 0x332211);
  SetPixel(picture.Dc(), 2, 0, RGB(0xAA, 0xBB, 0xCC));
  ASSERT_TRUE(CopyToClipboard(picture, nullptr));
  picture.Clear(black);
  const PastedPicture pasted = Paste();
  EXPECT_EQ(pasted.width, 3);
  EXPECT_EQ(pasted.height, 2);
  const Color other = RGB(0xAA, 0xBB, 0xCC);
  EXPECT_EQ(pasted.pixels, (std::vector<Color>{0x332211, 0x332211, other, 0x332211, 0x332211, 0x332211}));
}

TEST(Clipboard, ReplacesWhatWasThere) {
  ASSERT_TRUE(CopyToClipboard(Surface(4, 4, white), nullptr));
  ASSERT_TRUE(CopyToClipboard(Surface(2, 1, 0x0000FF), nullptr));
  EXPECT_EQ(Paste().pixels, (std::vector<Color>{0x0000FF, 0x0000FF}));
}

TEST(Clipboard, IsRefusedWhileAnotherHoldsItOpen) {
  const Surface picture(2, 2, white);
  // While a window has the clipboard open, no other window can open it; a window of another thread is another owner.
  bool copied = true;
  const HWND holder = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  ASSERT_NE(OpenClipboard(holder), 0);
  std::thread other([&] { copied = CopyToClipboard(picture, nullptr); });
  other.join();
  CloseClipboard();
  EXPECT_FALSE(copied);
  EXPECT_TRUE(CopyToClipboard(picture, nullptr));
  DestroyWindow(holder);
}

TEST(Clipboard, WaitsForAnotherThatHoldsItOpenForAMoment) {
  using namespace std::chrono_literals;
  const HWND holder = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  ASSERT_NE(OpenClipboard(holder), 0);
  auto copied = std::async(std::launch::async, [] { return CopyToClipboard(Surface(2, 2, white), nullptr); });
  EXPECT_EQ(copied.wait_for(300ms), std::future_status::timeout);
  CloseClipboard();
  EXPECT_TRUE(copied.get());
  DestroyWindow(holder);
}

TEST(Clipboard, KeepsNoHandleOfItsOwn) {
  const Surface picture(8, 8, white);
  ASSERT_TRUE(CopyToClipboard(picture, nullptr));
  const int before = support::CountGdiObjects();
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(CopyToClipboard(picture, nullptr));
  EXPECT_LE(support::CountGdiObjects(), before + 2);
}

}  // namespace
}  // namespace tarvik
