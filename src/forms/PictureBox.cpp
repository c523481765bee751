#include "forms/PictureBox.h"

#include <windows.h>

#include <windowsx.h>

#include <algorithm>
#include <optional>

namespace tarvik {
namespace {

constexpr int shiftMask = 1;
constexpr int controlMask = 2;
constexpr int altMask = 4;

struct PointerMessage {
  UINT message;
  PictureEvent::Kind kind;
  int button;  // 0: whichever are held down
};

constexpr PointerMessage pointerMessages[] = {
    {WM_LBUTTONDOWN, PictureEvent::Kind::MouseDown, 1},  {WM_LBUTTONUP, PictureEvent::Kind::MouseUp, 1},
    {WM_LBUTTONDBLCLK, PictureEvent::Kind::DblClick, 1}, {WM_RBUTTONDOWN, PictureEvent::Kind::MouseDown, 2},
    {WM_RBUTTONUP, PictureEvent::Kind::MouseUp, 2},      {WM_MBUTTONDOWN, PictureEvent::Kind::MouseDown, 4},
    {WM_MBUTTONUP, PictureEvent::Kind::MouseUp, 4},      {WM_MOUSEMOVE, PictureEvent::Kind::MouseMove, 0},
};

int HeldButtons(WPARAM keys) {
  return ((keys & MK_LBUTTON) != 0 ? 1 : 0) | ((keys & MK_RBUTTON) != 0 ? 2 : 0) | ((keys & MK_MBUTTON) != 0 ? 4 : 0);
}

int HeldKeys(WPARAM keys) {
  return ((keys & MK_SHIFT) != 0 ? shiftMask : 0) | ((keys & MK_CONTROL) != 0 ? controlMask : 0) |
         (GetKeyState(VK_MENU) < 0 ? altMask : 0);
}

std::optional<PictureEvent> ToEvent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto* row = std::ranges::find(pointerMessages, message, &PointerMessage::message);
  if (row == std::end(pointerMessages)) return std::nullopt;
  return PictureEvent{row->kind,        GetDlgCtrlID(window), row->button != 0 ? row->button : HeldButtons(wParam),
                      HeldKeys(wParam), GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

// The box's own memory: its picture and its content.
constexpr int pictureAt = 0;
constexpr int contentAt = sizeof(LONG_PTR);

const PictureContent* ContentOf(HWND window) {
  return reinterpret_cast<const PictureContent*>(GetWindowLongPtrW(window, contentAt));
}

void Paint(HWND window) {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window, &paint);
  const auto* picture = reinterpret_cast<const Surface*>(GetWindowLongPtrW(window, pictureAt));
  const RECT rest = paint.rcPaint;
  if (picture != nullptr) {
    const RECT& part = paint.rcPaint;
    BitBlt(dc, part.left, part.top, part.right - part.left, part.bottom - part.top, picture->Dc(), part.left, part.top,
           SRCCOPY);
    ExcludeClipRect(dc, 0, 0, picture->Width(), picture->Height());
  }
  FillRect(dc, &rest, GetSysColorBrush(COLOR_WINDOW));
  EndPaint(window, &paint);
}

// Keeps the pointer's messages coming while a button is held, wherever it goes.
void Capture(HWND window, const PictureEvent& event, WPARAM keys) {
  if (event.kind == PictureEvent::Kind::MouseDown || event.kind == PictureEvent::Kind::DblClick) SetCapture(window);
  if (event.kind == PictureEvent::Kind::MouseUp && HeldButtons(keys) == 0) ReleaseCapture();
}

}  // namespace

int HeldKeys() {
  return (GetKeyState(VK_SHIFT) < 0 ? shiftMask : 0) | (GetKeyState(VK_CONTROL) < 0 ? controlMask : 0) |
         (GetKeyState(VK_MENU) < 0 ? altMask : 0);
}

void PictureBox::Register(HINSTANCE instance) {
  WNDCLASSW definition{};
  definition.style = CS_DBLCLKS;
  definition.lpfnWndProc = WindowProcedure;
  definition.cbWndExtra = 2 * sizeof(LONG_PTR);
  definition.hInstance = instance;
  definition.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  definition.lpszClassName = className;
  RegisterClassW(&definition);
}

PictureBox PictureBox::Create(HWND parent, int id, int width, int height) {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE));
  return PictureBox(CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, parent,
                                    reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr));
}

void PictureBox::Show(const Surface* picture) {
  SetWindowLongPtrW(window_, pictureAt, reinterpret_cast<LONG_PTR>(picture));
  InvalidateRect(window_, nullptr, FALSE);
}

void PictureBox::Describe(const PictureContent* content) {
  SetWindowLongPtrW(window_, contentAt, reinterpret_cast<LONG_PTR>(content));
}

void PictureBox::Refresh() {
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

LRESULT CALLBACK PictureBox::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_PAINT) {
    Paint(window);
    return 0;
  }
  if (message == WM_ERASEBKGND) return 1;
  // The number of the object has 32 bits, whatever the parameter has.
  if (message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT && ContentOf(window) != nullptr) {
    if (const LRESULT answer = AnswerForPicture(window, wParam, ContentOf); answer != 0) return answer;
  }
  if (const auto event = ToEvent(window, message, wParam, lParam)) {
    Capture(window, *event, wParam);
    SendMessageW(GetAncestor(window, GA_ROOT), eventMessage, 0, reinterpret_cast<LPARAM>(&*event));
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace tarvik
