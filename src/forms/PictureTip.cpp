#include "forms/PictureTip.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "base/WrappedPath.h"
#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr LPARAM shownFor = 30'000;  // milliseconds; the control accepts up to 32767

bool IsMouse(UINT message) {
  return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

}  // namespace

void PictureTip::Attach(HWND picture) {
  picture_ = picture;
  text_.clear();
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(picture, GWLP_HINSTANCE));
  tip_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                         CW_USEDEFAULT, CW_USEDEFAULT, GetAncestor(picture, GA_ROOT), nullptr, instance, nullptr);
  // With a maximum width the control shows several lines. At this width it breaks none of them.
  SendMessageW(tip_, TTM_SETMAXTIPWIDTH, 0, GetSystemMetrics(SM_CXVIRTUALSCREEN));
  SendMessageW(tip_, TTM_SETDELAYTIME, TTDT_AUTOPOP, shownFor);
  SetWindowSubclass(picture, Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

// The tool is the whole picture box with a new id for each text: the control compares ids, so a tool needs no
// rectangle.
void PictureTip::Say(const std::string& text) {
  if (text == text_ || tip_ == nullptr) return;
  Remove();
  text_ = text;
  if (text.empty()) return;
  std::wstring wide = ToWide(text);
  TTTOOLINFOW part{};
  part.cbSize = TTTOOLINFOW_V1_SIZE;
  part.hwnd = picture_;
  part.uId = ++number_;
  GetClientRect(picture_, &part.rect);
  part.lpszText = wide.data();
  SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&part));
}

std::string PictureTip::Wrap(std::string_view path) const {
  constexpr int minColumns = 2;
  const int screen = GetSystemMetrics(SM_CXSCREEN);
  const int maxWidth = screen - screen / 16;  // the rest is for the tip's own margins
  int columns = 80;                           // longer lines are hard to read, however wide the screen
  std::string lines = WrapPath(path, columns);
  for (int width = WidthOf(lines); width > maxWidth && columns > minColumns; width = WidthOf(lines)) {
    columns = std::max(minColumns, std::min(columns - 1, MulDiv(columns, maxWidth, width)));
    lines = WrapPath(path, columns);
  }
  return lines;
}

// The width of the widest line, in pixels.
int PictureTip::WidthOf(const std::string& lines) const {
  const WindowDc dc(tip_);
  const SelectedObject font(dc.get(), reinterpret_cast<HGDIOBJ>(SendMessageW(tip_, WM_GETFONT, 0, 0)));
  RECT bounds{};
  DrawTextW(dc.get(), ToWide(lines).c_str(), -1, &bounds, DT_CALCRECT | DT_NOPREFIX);
  return bounds.right;
}

void PictureTip::Remove() {
  if (text_.empty()) return;
  TTTOOLINFOW part{};
  part.cbSize = TTTOOLINFOW_V1_SIZE;
  part.hwnd = picture_;
  part.uId = number_;
  SendMessageW(tip_, TTM_POP, 0, 0);
  SendMessageW(tip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&part));
}

void PictureTip::Relay(UINT message, WPARAM wParam, LPARAM lParam) const {
  MSG relayed{picture_, message, wParam, lParam, static_cast<DWORD>(GetMessageTime()), {}};
  GetCursorPos(&relayed.pt);
  SendMessageW(tip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

// A press hides the tip before it is served, because it may open a window; a move is sent to the form first, so that
// the tip control finds the part under the resting pointer.
LRESULT CALLBACK PictureTip::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                       DWORD_PTR data) {
  auto& tip = *reinterpret_cast<PictureTip*>(data);
  if (message == WM_NCDESTROY) {
    tip.tip_ = nullptr;
    RemoveWindowSubclass(window, Procedure, id);
  }
  if (IsMouse(message) && message != WM_MOUSEMOVE) tip.Relay(message, wParam, lParam);
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  if (message == WM_MOUSEMOVE && tip.tip_ != nullptr) tip.Relay(message, wParam, lParam);
  return answer;
}

}  // namespace tarvik
