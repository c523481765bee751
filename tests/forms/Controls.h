#pragma once

#include <windows.h>

#include <commctrl.h>

#include <string>
#include <vector>

#include "platform/Text.h"

// What tests do to the controls of a window, and read from them.
namespace tarvik::support {

inline void Command(HWND window, int id, int code = 0) {
  SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
}

inline std::string TextOf(HWND window) {
  std::wstring text(1024, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 1024)));
  return ToUtf8(text);
}
inline std::string TextOf(HWND window, int id) {
  return TextOf(GetDlgItem(window, id));
}
inline void SetText(HWND window, int id, const std::string& text) {
  SetWindowTextW(GetDlgItem(window, id), ToWide(text).c_str());
}

// Chooses a row of a drop-down list or a list box as a user does.
inline void ChooseRow(HWND window, int id, int row) {
  SendMessageW(GetDlgItem(window, id), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
  Command(window, id, CBN_SELCHANGE);
}
inline void OpenRow(HWND window, int id, int row) {
  SendMessageW(GetDlgItem(window, id), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
  Command(window, id, LBN_DBLCLK);
}
inline int RowCount(HWND window, int id) {
  return static_cast<int>(SendMessageW(GetDlgItem(window, id), CB_GETCOUNT, 0, 0));
}
inline int ChosenRow(HWND window, int id) {
  return static_cast<int>(SendMessageW(GetDlgItem(window, id), CB_GETCURSEL, 0, 0));
}
inline std::string RowText(HWND window, int id, int row) {
  std::wstring text(256, L'\0');
  SendMessageW(GetDlgItem(window, id), CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  return ToUtf8(text.c_str());
}

// The notifications of system changes that a window forwards to its controls, and those of them that reach `control` if
// the window receives each.
inline const std::vector<UINT> allChanges{WM_SYSCOLORCHANGE, WM_THEMECHANGED};
inline std::vector<UINT> ChangesToldTo(HWND control, HWND window) {
  std::vector<UINT> told;
  const auto listen = [](HWND listened, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                         DWORD_PTR data) -> LRESULT {
    const bool isChange = message == WM_SYSCOLORCHANGE || message == WM_THEMECHANGED;
    if (isChange) reinterpret_cast<std::vector<UINT>*>(data)->push_back(message);
    return DefSubclassProc(listened, message, wParam, lParam);
  };
  constexpr UINT_PTR listener = 77;
  SetWindowSubclass(control, listen, listener, reinterpret_cast<DWORD_PTR>(&told));
  for (const UINT change : allChanges) SendMessageW(window, change, 0, 0);
  RemoveWindowSubclass(control, listen, listener);
  return told;
}

}  // namespace tarvik::support
