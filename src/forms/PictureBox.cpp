#include "forms/PictureBox.h"

#include <windows.h>

#include <windowsx.h>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <utility>

#include "base/Point.h"
#include "base/RuntimeError.h"

namespace tarvik {
namespace {

constexpr int shiftMask = 1;
constexpr int controlMask = 2;
constexpr int altMask = 4;

struct PointerMessage {
  UINT message;
  PictureEvent::Kind kind;
  int button;  // 0: the buttons that are held
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

// The data of a box, which lives as long as its window.
struct Box {
  const Surface* picture = nullptr;
  const PictureContent* content = nullptr;
  DisplayScale scale;
  int rowsAbove = 0;  // display rows of the picture that begin above the window's top, see PictureBox::ScrollTo
  std::optional<Surface> tile;  // reused to make the enlarged parts one by one
};

// Small enough for the processor's cache.
constexpr int tileWidth = 256;
constexpr int tileHeight = 64;

// Window sides and positions in messages are limited to 16 bits.
constexpr int maxSide = 32767;

Box* BoxOf(HWND window) {
  return reinterpret_cast<Box*>(GetWindowLongPtrW(window, 0));
}

const PictureContent* ContentOf(HWND window) {
  const Box* box = BoxOf(window);
  return box != nullptr ? box->content : nullptr;
}

std::optional<PictureEvent> ToEvent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto* row = std::ranges::find(pointerMessages, message, &PointerMessage::message);
  if (row == std::end(pointerMessages)) return std::nullopt;
  const Box& box = *BoxOf(window);
  return PictureEvent{row->kind,
                      GetDlgCtrlID(window),
                      row->button != 0 ? row->button : HeldButtons(wParam),
                      HeldKeys(wParam),
                      box.scale.FromDisplay(GET_X_LPARAM(lParam)),
                      box.scale.FromDisplay(GET_Y_LPARAM(lParam) + box.rowsAbove)};
}

// The size of the picture on the display.
SIZE ShownSize(const Box& box) {
  return {box.scale.ToDisplay(box.picture->Width()), box.scale.ToDisplay(box.picture->Height())};
}

void PaintEnlarged(HDC dc, const Box& box, Surface& tile, const RECT& part) {
  for (LONG top = part.top; top < part.bottom; top += tileHeight) {
    for (LONG left = part.left; left < part.right; left += tileWidth) {
      tile.FillEnlarged(*box.picture, box.scale, Point{left, top + box.rowsAbove});
      BitBlt(dc, left, top, std::min<int>(tileWidth, part.right - left), std::min<int>(tileHeight, part.bottom - top),
             tile.Dc(), 0, 0, SRCCOPY);
    }
  }
}

void PaintPicture(HDC dc, Box& box, const RECT& part) {
  const SIZE size = ShownSize(box);
  const RECT whole{0, 0, size.cx, size.cy - box.rowsAbove};
  RECT seen{};
  IntersectRect(&seen, &part, &whole);
  if (box.scale.IsOne()) {
    BitBlt(dc, seen.left, seen.top, seen.right - seen.left, seen.bottom - seen.top, box.picture->Dc(), seen.left,
           seen.top + box.rowsAbove, SRCCOPY);
  } else if (box.tile) {
    PaintEnlarged(dc, box, *box.tile, seen);
  }
  ExcludeClipRect(dc, whole.left, whole.top, whole.right, whole.bottom);
}

void Paint(HWND window) {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window, &paint);
  const RECT rest = paint.rcPaint;
  Box& box = *BoxOf(window);
  if (box.picture != nullptr) PaintPicture(dc, box, paint.rcPaint);
  FillRect(dc, &rest, GetSysColorBrush(COLOR_WINDOW));
  EndPaint(window, &paint);
}

// Captures the mouse while a button is held, so that its messages arrive wherever the pointer goes.
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
  definition.cbWndExtra = sizeof(LONG_PTR);
  definition.hInstance = instance;
  definition.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  definition.lpszClassName = className;
  RegisterClassW(&definition);
}

PictureBox PictureBox::Create(HWND parent, int id, int width, int height) {
  const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(parent, GWLP_HINSTANCE));
  const HWND window = CreateWindowExW(0, className, L"", WS_CHILD | WS_VISIBLE, 0, 0, width, height, parent,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance, nullptr);
  if (window == nullptr) throw NoWindowError();
  return PictureBox(window);
}

void PictureBox::Show(const Surface* picture) {
  BoxOf(window_)->picture = picture;
  InvalidateRect(window_, nullptr, FALSE);
}

void PictureBox::Describe(const PictureContent* content) {
  BoxOf(window_)->content = content;
}

void PictureBox::EnlargeBy(const DisplayScale& scale) {
  Box& box = *BoxOf(window_);
  if (!scale.IsOne()) box.tile.emplace(tileWidth, tileHeight, white);
  box.scale = scale;
  InvalidateRect(window_, nullptr, FALSE);
}

void PictureBox::FitPicture() {
  const SIZE size = ShownSize(*BoxOf(window_));
  SetWindowPos(window_, nullptr, 0, 0, std::min<int>(size.cx, maxSide), std::min<int>(size.cy, maxSide),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The window is as high as the picture on the display and moves with it. If the picture is higher than a window can be,
// the window does not move, and the picture scrolls inside it.
void PictureBox::ScrollTo(int row) {
  Box& box = *BoxOf(window_);
  const int top = box.scale.ToDisplay(row);
  const int rowsAbove = ShownSize(box).cy > maxSide ? top : 0;
  if (std::exchange(box.rowsAbove, rowsAbove) != rowsAbove) InvalidateRect(window_, nullptr, FALSE);
  SetWindowPos(window_, nullptr, 0, rowsAbove - top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void PictureBox::Refresh() {
  RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void PictureBox::Invalidate(const RECT& part) {
  const RECT bounds = BoundsInWindow(window_, part);
  InvalidateRect(window_, &bounds, FALSE);
}

RECT PictureBox::BoundsInWindow(HWND window, const RECT& part) {
  const Box* box = BoxOf(window);
  if (box == nullptr) return part;
  const DisplayScale::Range across = box->scale.DisplayRange({part.left, part.right});
  const DisplayScale::Range down = box->scale.DisplayRange({part.top, part.bottom});
  return {across.begin, down.begin - box->rowsAbove, across.end, down.end - box->rowsAbove};
}

LRESULT CALLBACK PictureBox::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NCCREATE) {
    std::unique_ptr<Box> box(new (std::nothrow) Box);
    if (!box) return FALSE;
    SetWindowLongPtrW(window, 0, reinterpret_cast<LONG_PTR>(box.release()));
  }
  // The window owns the box until then. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
  if (message == WM_NCDESTROY) {
    delete BoxOf(window);
    SetWindowLongPtrW(window, 0, 0);
  }
  if (message == WM_PAINT) {
    Paint(window);
    return 0;
  }
  if (message == WM_ERASEBKGND) return 1;
  // The object id has 32 bits, whatever the parameter's width.
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
