#include "startup/TextChecks.h"

#include <windows.h>

#include <array>
#include <cwchar>
#include <cwctype>
#include <optional>
#include <set>

#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::support {
namespace {

// The width that a button needs besides its text, in dialog units: its edges, or the box and the gap after it.
constexpr int buttonEdges = 6;
constexpr int boxAndGap = 11;

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

bool IsOfClass(HWND window, const wchar_t* name) {
  std::array<wchar_t, 64> own{};
  GetClassNameW(window, own.data(), static_cast<int>(own.size()));
  return _wcsicmp(own.data(), name) == 0;
}

LONG StyleOf(HWND window) {
  return GetWindowLongW(window, GWL_STYLE);
}

bool IsLabelWithoutPrefix(HWND window) {
  return IsOfClass(window, L"Static") && (StyleOf(window) & SS_NOPREFIX) != 0;
}

std::vector<HWND> ControlsOf(HWND window) {
  std::vector<HWND> controls;
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if (IsOfClass(child, L"Static") || IsOfClass(child, L"Button")) controls.push_back(child);
  }
  return controls;
}

// The letter after a single "&", in upper case.
std::optional<wchar_t> AccessKey(const std::wstring& text) {
  for (std::size_t at = 0; at + 1 < text.size(); ++at) {
    if (text[at] != L'&') continue;
    if (text[at + 1] != L'&') return static_cast<wchar_t>(std::towupper(text[at + 1]));
    ++at;
  }
  return std::nullopt;
}

// Collects the texts whose access key is already used by an earlier one.
class Keys {
 public:
  void Add(const std::wstring& text) {
    const auto key = AccessKey(text);
    if (key && !taken_.insert(*key).second) refused.push_back(ToUtf8(text));
  }

  std::vector<std::string> refused;

 private:
  std::set<wchar_t> taken_;
};

void AddTakenKeys(HMENU menu, std::vector<std::string>& found) {
  Keys keys;
  for (int item = 0; item < GetMenuItemCount(menu); ++item) {
    std::array<wchar_t, 128> text{};
    GetMenuStringW(menu, static_cast<UINT>(item), text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
    keys.Add(text.data());
    if (const HMENU below = GetSubMenu(menu, item)) AddTakenKeys(below, found);
  }
  found.insert(found.end(), keys.refused.begin(), keys.refused.end());
}

int DialogUnits(HWND window, int across) {
  RECT units{0, 0, across, 0};
  MapDialogRect(window, &units);
  return units.right;
}

// The width that a control needs besides its text, in pixels.
int Surroundings(HWND control) {
  if (!IsOfClass(control, L"Button")) return 0;
  const LONG type = StyleOf(control) & BS_TYPEMASK;
  if (type == BS_GROUPBOX) return DialogUnits(GetParent(control), boxAndGap);
  const bool pushed = type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
  return DialogUnits(GetParent(control), pushed ? buttonEdges : boxAndGap);
}

bool HasRoom(HWND control, const std::wstring& text) {
  RECT room;
  GetClientRect(control, &room);
  room.right -= Surroundings(control);
  const bool wraps = IsOfClass(control, L"Static") && (StyleOf(control) & SS_TYPEMASK) <= SS_RIGHT;
  const bool isGroup = IsOfClass(control, L"Button") && (StyleOf(control) & BS_TYPEMASK) == BS_GROUPBOX;

  const WindowDc dc(control);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
  RECT needed{0, 0, room.right, 0};
  const UINT format =
      DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE) | (IsLabelWithoutPrefix(control) ? DT_NOPREFIX : 0U);
  DrawTextW(dc.get(), text.c_str(), -1, &needed, format);
  // A line of a font may be a pixel higher than a one-line label; only blank pixels are cut off then.
  return needed.right <= room.right && (isGroup || needed.bottom <= room.bottom + 1);
}

}  // namespace

std::vector<std::string> TextsWithTakenKeys(HWND window) {
  Keys keys;
  for (const HWND control : ControlsOf(window)) {
    if (!IsLabelWithoutPrefix(control)) keys.Add(TextOf(control));
  }
  return keys.refused;
}

std::vector<std::string> MenuTextsWithTakenKeys(HWND window) {
  std::vector<std::string> found;
  if (const HMENU menu = GetMenu(window)) AddTakenKeys(menu, found);
  return found;
}

std::vector<std::string> CutOffTexts(HWND window) {
  std::vector<std::string> found;
  for (const HWND control : ControlsOf(window)) {
    const std::wstring text = TextOf(control);
    if (!text.empty() && !HasRoom(control, text)) found.push_back(ToUtf8(text));
  }
  return found;
}

}  // namespace tarvik::support
