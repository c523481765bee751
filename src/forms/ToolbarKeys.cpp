#include "forms/ToolbarKeys.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/Handles.h"

namespace tarvik {
namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data);

int CountButtons(HWND toolbar) {
  return static_cast<int>(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0));
}

// A button by its index, which also counts the separators.
TBBUTTON ButtonAt(HWND toolbar, int index) {
  TBBUTTON button{};
  SendMessageW(toolbar, TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
  return button;
}

bool CanBePressed(const TBBUTTON& button) {
  return (button.fsStyle & BTNS_SEP) == 0 && (button.fsState & TBSTATE_ENABLED) != 0;
}

// Screen readers treat the control's hot button as the focused one.
void ShowMark(HWND toolbar, int index, bool focused) {
  SendMessageW(toolbar, TB_SETHOTITEM, focused ? static_cast<WPARAM>(index) : static_cast<WPARAM>(-1), 0);
  InvalidateRect(toolbar, nullptr, TRUE);
  if (focused) NotifyWinEvent(EVENT_OBJECT_FOCUS, toolbar, OBJID_CLIENT, index + 1);
}

// Marks the first enabled button from `index` on in the direction of `step`; does nothing if there is none.
void MarkFrom(HWND toolbar, int index, int step) {
  for (; index >= 0 && index < CountButtons(toolbar); index += step) {
    if (!CanBePressed(ButtonAt(toolbar, index))) continue;
    SetWindowSubclass(toolbar, Procedure, 0, static_cast<DWORD_PTR>(index));
    return ShowMark(toolbar, index, true);
  }
}

void DrawMark(HWND toolbar, int index) {
  RECT frame{};
  const auto wanted = reinterpret_cast<LPARAM>(&frame);
  if (SendMessageW(toolbar, TB_GETITEMRECT, static_cast<WPARAM>(index), wanted) == FALSE) return;
  const WindowDc dc(toolbar);
  FrameRect(dc.get(), &frame, GetSysColorBrush(COLOR_BTNTEXT));
}

void Press(HWND toolbar, int index) {
  const TBBUTTON button = ButtonAt(toolbar, index);
  if (!CanBePressed(button)) return;
  SendMessageW(GetParent(toolbar), WM_COMMAND, MAKEWPARAM(button.idCommand, BN_CLICKED),
               reinterpret_cast<LPARAM>(toolbar));
}

bool OnKey(HWND toolbar, WPARAM key, int marked) {
  switch (key) {
    case VK_LEFT:
    case VK_UP:
      MarkFrom(toolbar, marked - 1, -1);
      return true;
    case VK_RIGHT:
    case VK_DOWN:
      MarkFrom(toolbar, marked + 1, 1);
      return true;
    case VK_HOME:
      MarkFrom(toolbar, 0, 1);
      return true;
    case VK_END:
      MarkFrom(toolbar, CountButtons(toolbar) - 1, -1);
      return true;
    case VK_RETURN:
      Press(toolbar, marked);
      return true;
    default:
      return false;
  }
}

// Arrow keys always, and Enter if it is the key, because it would press the window's default button.
LRESULT WantedKeys(const MSG* key) {
  const bool isEnter = key != nullptr && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
  return DLGC_WANTARROWS | (isEnter ? DLGC_WANTMESSAGE : 0);
}

// `data` is the index of the marked button.
LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/, DWORD_PTR data) {
  const auto marked = static_cast<int>(data);
  if (message == WM_GETDLGCODE) return WantedKeys(reinterpret_cast<const MSG*>(lParam));
  if (message == WM_KEYDOWN && OnKey(window, wParam, marked)) return 0;
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, Procedure, 0);
  const LRESULT answer = DefSubclassProc(window, message, wParam, lParam);
  if (message == WM_SETFOCUS || message == WM_KILLFOCUS) ShowMark(window, marked, message == WM_SETFOCUS);
  if (message == WM_PAINT && GetFocus() == window) DrawMark(window, marked);
  return answer;
}

}  // namespace

void AddToolbarKeys(HWND toolbar) {
  SetWindowSubclass(toolbar, Procedure, 0, 0);
}

}  // namespace tarvik
