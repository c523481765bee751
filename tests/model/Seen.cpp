#include "model/Seen.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cwchar>

#include "platform/Handles.h"

namespace tarvik::model::seen {
namespace {

constexpr int boxText = 0xFFFF;  // the static control of a message box
constexpr std::size_t longest = 1024;

std::string Utf8(const wchar_t* text) {
  const int length = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(std::max(length, 1)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), length, nullptr, nullptr);
  bytes.pop_back();
  return bytes;
}

UINT MenuState(HWND window, int item, UINT by) {
  return GetMenuState(GetMenu(window), static_cast<UINT>(item), by);
}

// By window. A handle is not used twice in a run of the program.
std::unordered_map<HWND, Controls> knownControls;
std::vector<HWND> tips;

bool IsOfClass(HWND window, const wchar_t* name) {
  std::array<wchar_t, 64> text{};
  GetClassNameW(window, text.data(), static_cast<int>(text.size()));
  return std::wcscmp(text.data(), name) == 0;
}

std::string TextOfTip(HWND tip, HWND control) {
  std::array<wchar_t, longest> text{};
  TTTOOLINFOW part{};
  part.cbSize = TTTOOLINFOW_V1_SIZE;
  part.lpszText = text.data();
  if (SendMessageW(tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&part)) == 0 || part.hwnd != control) return {};
  return Utf8(text.data());
}

// A picture in memory into which windows are copied.
class Copy {
 public:
  Copy() : dc_(CreateCompatibleDC(nullptr)) {}

  const Picture& Of(HWND window, int width, int height) {
    Grow(width, height);
    const WindowDc source(window);
    BitBlt(dc_.get(), 0, 0, width, height, source.get(), 0, 0, SRCCOPY);
    GdiFlush();
    picture_.width = width;
    picture_.height = height;
    picture_.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    Pixel* out = picture_.pixels.data();
    for (int y = 0; y < height; ++y) {
      const Pixel* row = bits_ + static_cast<std::ptrdiff_t>(y) * width_;
      for (int x = 0; x < width; ++x) {
        const Pixel color = row[x];
        *out++ = (color & 0xFFU) << 16 | (color & 0xFF00U) | (color >> 16 & 0xFFU);
      }
    }
    return picture_;
  }

 private:
  void Grow(int width, int height) {
    if (width <= width_ && height <= height_) return;
    width_ = std::max(width, width_);
    height_ = std::max(height, height_);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    BitmapHandle bitmap(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    SelectObject(dc_.get(), bitmap.get());
    bitmap_ = std::move(bitmap);
    bits_ = static_cast<const Pixel*>(bits);
  }

  MemoryDc dc_;
  BitmapHandle bitmap_;
  const Pixel* bits_ = nullptr;
  int width_ = 0;
  int height_ = 0;
  Picture picture_;
};

}  // namespace

Controls::Controls(HWND window) : window_(window) {
  GetWindowRect(window, &first_);
  EnumChildWindows(
      window,
      [](HWND control, LPARAM data) -> BOOL {
        auto& controls = *reinterpret_cast<Controls*>(data);
        controls.all_.emplace(GetDlgCtrlID(control), Control{control, BoundsIn(controls.window_, control)});
        return TRUE;
      },
      reinterpret_cast<LPARAM>(this));
}

RECT BoundsIn(HWND window, HWND control) {
  RECT bounds{};
  GetWindowRect(control, &bounds);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

LRESULT Ask(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto procedure = reinterpret_cast<WNDPROC>(GetClassLongPtrW(control, GCLP_WNDPROC));
  return CallWindowProcW(procedure, control, message, wParam, lParam);
}

bool IsTicked(HWND button) {
  return Ask(button, BM_GETCHECK) == BST_CHECKED;
}

std::string Text(HWND window) {
  std::array<wchar_t, longest> text{};
  SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  return Utf8(text.data());
}

std::string Text(HWND window, int id) {
  return Text(ControlsOf(window).Of(id));
}

std::string Status(HWND bar) {
  std::array<wchar_t, longest> text{};
  SendMessageW(bar, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
  return Utf8(text.data());
}

std::vector<std::string> ListRows(HWND listBox) {
  std::vector<std::string> rows;
  const LRESULT count = Ask(listBox, LB_GETCOUNT);
  for (LRESULT row = 0; row < count; ++row) {
    std::array<wchar_t, longest> text{};
    Ask(listBox, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
    rows.push_back(Utf8(text.data()));
  }
  return rows;
}

std::string ChosenComboRow(HWND comboBox) {
  const LRESULT row = Ask(comboBox, CB_GETCURSEL);
  std::array<wchar_t, longest> text{};
  if (row != CB_ERR) Ask(comboBox, CB_GETLBTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
  return Utf8(text.data());
}

std::string Cell(HWND listView, int row, int column) {
  std::array<wchar_t, longest> text{};
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  Ask(listView, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
  return Utf8(text.data());
}

std::string Header(HWND listView, int column) {
  std::array<wchar_t, longest> text{};
  LVCOLUMNW definition{};
  definition.mask = LVCF_TEXT;
  definition.pszText = text.data();
  definition.cchTextMax = static_cast<int>(text.size());
  const bool isThere =
      Ask(listView, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&definition)) != 0;
  return isThere ? Utf8(text.data()) : std::string();
}

bool IsMenuEnabled(HWND window, int id) {
  return (MenuState(window, id, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
}

bool IsBarMenuEnabled(HWND window, int position) {
  return (MenuState(window, position, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) == 0;
}

bool IsMenuChecked(HWND window, int id) {
  return (MenuState(window, id, MF_BYCOMMAND) & MF_CHECKED) != 0;
}

bool IsShown(HWND control) {
  return (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

const Picture& Pixels(HWND window, int width, int height) {
  static Copy copy;
  return copy.Of(window, width, height);
}

std::vector<HWND> WindowsInSight() {
  std::vector<HWND> windows;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM list) -> BOOL {
        if (IsWindowVisible(window) != FALSE) reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  return windows;
}

const Controls& ControlsOf(HWND window) {
  return knownControls.try_emplace(window, window).first->second;
}

void Forget() {
  knownControls.clear();
}

HWND WindowWith(int id, const std::vector<HWND>& windows) {
  const auto found = std::ranges::find_if(windows, [id](HWND window) { return ControlsOf(window).Of(id) != nullptr; });
  return found == windows.end() ? nullptr : *found;
}

HWND MenuInSight() {
  const std::vector<HWND> windows = WindowsInSight();
  const auto found = std::ranges::find_if(windows, [](HWND window) { return IsOfClass(window, L"#32768"); });
  return found == windows.end() ? nullptr : *found;
}

std::string TipOf(HWND control) {
  for (const HWND tip : tips) {
    const std::string text = TextOfTip(tip, control);
    if (!text.empty()) return text;
  }
  return {};
}

void DelayTips() {
  tips.clear();
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM) -> BOOL {
        if (IsOfClass(window, TOOLTIPS_CLASSW)) tips.push_back(window);
        return TRUE;
      },
      0);
  constexpr LPARAM longestDelay = 32767;  // ms
  for (const HWND tip : tips) {
    for (const int when : {TTDT_INITIAL, TTDT_RESHOW})
      SendMessageW(tip, TTM_SETDELAYTIME, static_cast<WPARAM>(when), longestDelay);
  }
}

HWND MessageBoxInSight() {
  return WindowWith(boxText);
}

std::string BoxText(HWND box) {
  return Text(box, boxText);
}

void PaintAll() {
  for (const HWND window : WindowsInSight())
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_ERASENOW);
}

}  // namespace tarvik::model::seen
