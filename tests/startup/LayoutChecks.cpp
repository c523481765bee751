#include "startup/LayoutChecks.h"

#include <windows.h>

#include <array>
#include <cwchar>

#include "platform/Handles.h"

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

std::string Described(HWND control) {
  RECT place;
  GetWindowRect(control, &place);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
  return std::to_string(GetDlgCtrlID(control)) + " (" + std::to_string(place.left) + "," + std::to_string(place.top) +
         ")-(" + std::to_string(place.right) + "," + std::to_string(place.bottom) + ")";
}

LONG LetterHeight(HWND control) {
  const WindowDc dc(control);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc.get(), &metrics);
  return metrics.tmHeight;
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
        found.push_back(Described(controls[first]) + " over " + Described(controls[second]));
    }
  }
  return found;
}

std::vector<int> ListsThatCutLetters(HWND window) {
  std::vector<int> found;
  for (const HWND control : VisibleControls(window)) {
    if (IsOfClass(control, L"ListBox") && SendMessageW(control, LB_GETITEMHEIGHT, 0, 0) < LetterHeight(control))
      found.push_back(GetDlgCtrlID(control));
  }
  return found;
}

}  // namespace tarvik::support
