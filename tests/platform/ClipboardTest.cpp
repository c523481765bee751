#include "platform/Clipboard.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <thread>

#include "platform/GdiObjects.h"
#include "platform/Handles.h"

namespace tarvik {
namespace {

// Pixels of the bitmap on the clipboard, as another program gets them: as a device-independent bitmap.
struct Pasted {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> rows;  // 0x00RRGGBB, lowest row first
};

Pasted Paste() {
  Pasted pasted;
  if (OpenClipboard(nullptr) == 0) return pasted;
  if (const HANDLE data = GetClipboardData(CF_DIB)) {
    const auto* const bytes = static_cast<const std::byte*>(GlobalLock(data));
    BITMAPINFOHEADER header;
    std::memcpy(&header, bytes, sizeof header);
    EXPECT_EQ(header.biBitCount, 32);
    pasted.width = header.biWidth;
    pasted.height = header.biHeight;
    pasted.rows.resize(static_cast<std::size_t>(header.biWidth) * static_cast<std::size_t>(header.biHeight));
    const std::size_t masks = header.biCompression == BI_BITFIELDS ? 3 * sizeof(DWORD) : 0;
    std::memcpy(pasted.rows.data(), bytes + header.biSize + masks, pasted.rows.size() * 4);
    for (std::uint32_t& pixel : pasted.rows) pixel &= 0xFFFFFF;
    GlobalUnlock(data);
  }
  CloseClipboard();
  return pasted;
}

TEST(Clipboard, TakesACopyOfThePicture) {
  Surface picture(3, 2, 0x332211);
  SetPixel(picture.Dc(), 2, 0, RGB(0xAA, 0xBB, 0xCC));
  ASSERT_TRUE(CopyToClipboard(picture, nullptr));
  picture.Clear(black);
  const Pasted pasted = Paste();
  EXPECT_EQ(pasted.width, 3);
  EXPECT_EQ(pasted.height, 2);
  EXPECT_EQ(pasted.rows, (std::vector<std::uint32_t>{0x112233, 0x112233, 0x112233, 0x112233, 0x112233, 0xAABBCC}));
}

TEST(Clipboard, ReplacesWhatWasThere) {
  ASSERT_TRUE(CopyToClipboard(Surface(4, 4, white), nullptr));
  ASSERT_TRUE(CopyToClipboard(Surface(2, 1, 0x0000FF), nullptr));
  EXPECT_EQ(Paste().rows, (std::vector<std::uint32_t>{0xFF0000, 0xFF0000}));
}

TEST(Clipboard, IsRefusedWhileAnotherHoldsItOpen) {
  const Surface picture(2, 2, white);
  // Whoever opened it for a window has it to themselves; another thread's window is another owner.
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

TEST(Clipboard, KeepsNoHandleOfItsOwn) {
  const Surface picture(8, 8, white);
  ASSERT_TRUE(CopyToClipboard(picture, nullptr));
  const int before = testing::CountGdiObjects();
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(CopyToClipboard(picture, nullptr));
  EXPECT_LE(testing::CountGdiObjects(), before + 2);
}

}  // namespace
}  // namespace tarvik
