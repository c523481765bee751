#include "platform/Clipboard.h"

#include "base/NonCopyable.h"
#include "platform/Handles.h"

namespace tarvik {
namespace {

// Another program can have the clipboard open for a moment: on a busy system for longer than a tenth of a second.
constexpr int attempts = 100;
constexpr DWORD pauseMilliseconds = 10;

// Keeps the clipboard open while it lives, if it could be opened.
class OpenedClipboard : NonCopyable {
 public:
  explicit OpenedClipboard(HWND owner) {
    for (int attempt = 1; !(opened_ = OpenClipboard(owner) != 0) && attempt < attempts; ++attempt)
      Sleep(pauseMilliseconds);
  }
  ~OpenedClipboard() {
    if (opened_) CloseClipboard();
  }

  explicit operator bool() const { return opened_; }

 private:
  bool opened_ = false;
};

// A device-dependent bitmap: the memory of a DIB section belongs to this process, so other programs cannot read one.
BitmapHandle ScreenBitmap(const Surface& picture) {
  const WindowDc screen(nullptr);
  BitmapHandle bitmap(CreateCompatibleBitmap(screen.get(), picture.Width(), picture.Height()));
  const MemoryDc dc(CreateCompatibleDC(screen.get()));
  if (!bitmap || !dc) return {};
  const SelectedObject selected(dc.get(), bitmap.get());
  BitBlt(dc.get(), 0, 0, picture.Width(), picture.Height(), picture.Dc(), 0, 0, SRCCOPY);
  return bitmap;
}

}  // namespace

bool CopyToClipboard(const Surface& picture, HWND owner) {
  BitmapHandle bitmap = ScreenBitmap(picture);
  if (!bitmap) return false;
  const OpenedClipboard clipboard(owner);
  if (!clipboard || EmptyClipboard() == 0) return false;
  if (SetClipboardData(CF_BITMAP, bitmap.get()) == nullptr) return false;
  bitmap.release();  // the clipboard owns it now
  return true;
}

}  // namespace tarvik
