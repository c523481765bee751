#include "startup/LayoutChecks.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cwchar>
#include <string>

#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::support {
namespace {

bool IsOfClass(HWND window, const wchar_t* name) {
  std::array<wchar_t, 64> own{};
  GetClassNameW(window, own.data(), static_cast<int>(own.size()));
  return _wcsicmp(own.data(), name) == 0;
}

bool IsGroupBox(HWND control) {
  return IsOfClass(control, L"Button") && (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

std::vector<HWND> VisibleControls(HWND window) {
  std::vector<HWND> controls;
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    // Tests the control's own style, whether or not the window is visible.
    const bool visible = (GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0;
    if (visible && !IsGroupBox(child)) controls.push_back(child);
  }
  return controls;
}

std::string Describe(HWND control) {
  RECT bounds;
  GetWindowRect(control, &bounds);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&bounds), 2);
  return std::to_string(GetDlgCtrlID(control)) + " (" + std::to_string(bounds.left) + "," + std::to_string(bounds.top) +
         ")-(" + std::to_string(bounds.right) + "," + std::to_string(bounds.bottom) + ")";
}

LONG LetterHeight(HWND control) {
  const WindowDc dc(control);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.get(), &metrics);
  return metrics.tmHeight;
}

LONG WidthIn(HWND control, const std::wstring& text) {
  const WindowDc dc(control);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
  SIZE size{};
  GetTextExtentPoint32W(dc.get(), text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

SIZE InsideOf(HWND control) {
  RECT inside{};
  GetClientRect(control, &inside);
  return {inside.right, inside.bottom};
}

// The height that a control has for a row of text; a large one if it is no list and no text box.
LRESULT RowHeight(HWND control) {
  if (IsOfClass(control, L"ListBox")) return SendMessageW(control, LB_GETITEMHEIGHT, 0, 0);
  if (IsOfClass(control, L"Edit")) return InsideOf(control).cy;
  if (!IsOfClass(control, L"ComboBox")) return 10'000;
  return std::min(SendMessageW(control, CB_GETITEMHEIGHT, 0, 0),
                  SendMessageW(control, CB_GETITEMHEIGHT, WPARAM(-1), 0));
}

bool HasOneLine(HWND textBox) {
  return (GetWindowLongW(textBox, GWL_STYLE) & ES_MULTILINE) == 0;
}

// The texts that a drop-down list or a text box shows, and the width that it has for them.
struct ShownTexts {
  std::vector<std::wstring> texts;
  LONG room = 0;
};

ShownTexts TextsOf(HWND control) {
  ShownTexts shown;
  if (IsOfClass(control, L"Edit") && HasOneLine(control)) {
    std::array<wchar_t, 256> text{};
    GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
    RECT room{};
    SendMessageW(control, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    shown = {{text.data()}, room.right - room.left};
  }
  if (IsOfClass(control, L"ComboBox")) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(control, &info);
    shown.room = info.rcItem.right - info.rcItem.left;
    const LRESULT rows = SendMessageW(control, CB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < rows; ++row) {
      std::array<wchar_t, 256> text{};
      SendMessageW(control, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
      shown.texts.emplace_back(text.data());
    }
  }
  return shown;
}

}  // namespace

std::vector<std::string> OverlappingControls(HWND window) {
  std::vector<std::string> found;
  const std::vector<HWND> controls = VisibleControls(window);
  for (std::size_t first = 0; first < controls.size(); ++first) {
    for (std::size_t second = first + 1; second < controls.size(); ++second) {
      RECT one;
      RECT other;
      RECT both;
      GetWindowRect(controls[first], &one);
      GetWindowRect(controls[second], &other);
      if (IntersectRect(&both, &one, &other) != FALSE)
        found.push_back(Describe(controls[first]) + " over " + Describe(controls[second]));
    }
  }
  return found;
}

std::vector<std::string> ControlsOutside(HWND window) {
  std::vector<std::string> found;
  const SIZE inside = InsideOf(window);
  for (const HWND control : VisibleControls(window)) {
    RECT bounds;
    GetWindowRect(control, &bounds);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&bounds), 2);
    if (bounds.left < 0 || bounds.top < 0 || bounds.right > inside.cx || bounds.bottom > inside.cy)
      found.push_back(Describe(control));
  }
  return found;
}

std::vector<int> ListsThatCutLetters(HWND window) {
  std::vector<int> found;
  for (const HWND control : VisibleControls(window)) {
    if (RowHeight(control) < LetterHeight(control)) found.push_back(GetDlgCtrlID(control));
  }
  return found;
}

std::vector<std::string> CutOffChoices(HWND window) {
  std::vector<std::string> found;
  for (const HWND control : VisibleControls(window)) {
    const ShownTexts shown = TextsOf(control);
    for (const std::wstring& text : shown.texts) {
      if (WidthIn(control, text) > shown.room) found.push_back(ToUtf8(text));
    }
  }
  return found;
}

std::vector<std::string> CutOffHeaders(HWND list) {
  std::vector<std::string> found;
  const HWND header = ListView_GetHeader(list);
  const int margins = 6 * GetSystemMetrics(SM_CXEDGE);
  for (int column = 0; column < Header_GetItemCount(header); ++column) {
    std::array<wchar_t, 64> text{};
    HDITEMW item{};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    if (WidthIn(header, text.data()) + margins > item.cxy) found.push_back(ToUtf8(text.data()));
  }
  return found;
}

}  // namespace tarvik::support
