#include "forms/BoxWatcher.h"

#include <windows.h>

#include <array>
#include <cwchar>

#include "platform/Text.h"

namespace tarvik::support {
namespace {

constexpr UINT period = 10;          // ms
constexpr int textControl = 0xFFFF;  // the static control of a message box

BoxWatcher* watcher = nullptr;

std::string TextOf(HWND window) {
  std::array<wchar_t, 1024> text{};
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  return ToUtf8({text.data(), static_cast<std::size_t>(length)});
}

// The icon next to the text.
HICON SignOf(HWND box) {
  for (HWND item = GetWindow(box, GW_CHILD); item != nullptr; item = GetWindow(item, GW_HWNDNEXT)) {
    const auto icon = reinterpret_cast<HICON>(SendMessageW(item, STM_GETICON, 0, 0));
    if ((GetWindowLongW(item, GWL_STYLE) & SS_TYPEMASK) == SS_ICON && icon != nullptr) return icon;
  }
  return nullptr;
}

}  // namespace

struct BoxWatcherTimer {
  static BOOL CALLBACK Visit(HWND window, LPARAM /*parameter*/) {
    std::array<wchar_t, 16> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    const HWND text = GetDlgItem(window, textControl);
    if (std::wcscmp(name.data(), L"#32770") != 0 || text == nullptr || IsWindowVisible(window) == FALSE) return TRUE;
    watcher->boxes_.push_back({TextOf(window), TextOf(text), SignOf(window)});
    EndDialog(window, IDOK);
    return TRUE;
  }

  static void CALLBACK Tick(HWND /*window*/, UINT /*message*/, UINT_PTR /*id*/, DWORD /*time*/) {
    EnumThreadWindows(GetCurrentThreadId(), Visit, 0);
  }
};

BoxWatcher::BoxWatcher() : timer_(SetTimer(nullptr, 0, period, BoxWatcherTimer::Tick)) {
  watcher = this;
}

BoxWatcher::~BoxWatcher() {
  KillTimer(nullptr, timer_);
  watcher = nullptr;
}

}  // namespace tarvik::support
