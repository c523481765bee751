#include "platform/PastedPicture.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/Text.h"

namespace tarvik::support {
namespace {

PastedPicture FromBitmap(const std::byte* bytes) {
  BITMAPINFOHEADER header;
  std::memcpy(&header, bytes, sizeof header);
  EXPECT_EQ(header.biBitCount, 32);
  PastedPicture picture{.width = header.biWidth, .height = header.biHeight, .pixels = {}};
  const std::size_t masks = header.biCompression == BI_BITFIELDS ? 3 * sizeof(DWORD) : 0;
  const std::byte* const rows = bytes + header.biSize + masks;
  for (int y = header.biHeight - 1; y >= 0; --y) {  // the lowest row comes first
    for (int x = 0; x < header.biWidth; ++x) {
      RGBQUAD pixel;
      std::memcpy(&pixel, rows + (static_cast<std::ptrdiff_t>(y) * header.biWidth + x) * 4, sizeof pixel);
      picture.pixels.push_back(RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue));
    }
  }
  return picture;
}

// Returns whether it is open now. Another program, or the system itself, may have it open for a moment.
bool Open(HWND owner) {
  const ULONGLONG deadline = GetTickCount64() + 60000;
  while (OpenClipboard(owner) == 0) {
    if (GetTickCount64() >= deadline) {
      ADD_FAILURE() << "the clipboard cannot be opened";
      return false;
    }
    Sleep(1);
  }
  return true;
}

}  // namespace

PastedPicture Paste() {
  PastedPicture picture;
  // A test that waits for a picture must not keep the clipboard from the program that is about to copy it.
  if (IsClipboardFormatAvailable(CF_DIB) == 0 || !Open(nullptr)) return picture;
  if (const HANDLE data = GetClipboardData(CF_DIB)) {
    picture = FromBitmap(static_cast<const std::byte*>(GlobalLock(data)));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return picture;
}

std::string PastedText() {
  std::string text;
  if (IsClipboardFormatAvailable(CF_UNICODETEXT) == 0 || !Open(nullptr)) return text;
  if (const HANDLE data = GetClipboardData(CF_UNICODETEXT)) {
    text = ToUtf8(static_cast<const wchar_t*>(GlobalLock(data)));
    GlobalUnlock(data);
  }
  CloseClipboard();
  return text;
}

void CopyText(const std::string& text) {
  // Without an owner, no data can be put there.
  const HWND owner = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  if (Open(owner)) {
    EmptyClipboard();
    const std::wstring wide = ToWide(text);
    const std::size_t size = (wide.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(memory), wide.c_str(), size);
    GlobalUnlock(memory);
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
  }
  DestroyWindow(owner);
}

}  // namespace tarvik::support
