#include "grid/IconGrid.h"

#include <windows.h>

#include <windowsx.h>

#include "forms/Bounds.h"
#include "platform/Display.h"
#include "platform/Handles.h"

namespace tarvik {
namespace {

bool IsOver(POINT pointer, HWND window) {
  RECT bounds;
  GetWindowRect(window, &bounds);
  return PtInRect(&bounds, pointer) != FALSE;
}

}  // namespace

IconGrid::IconGrid() : picture_(WidestGrid(), viewportHeight, white) {}

void IconGrid::Attach(HWND frame, HWND bar, int pictureId) {
  frame_ = frame;
  vsb_.Attach(bar);
  extent_.reset();
  const RECT bounds = BoundsInParent(frame_);
  const int border = 2 * GetSystemMetrics(SM_CXEDGE);
  const DisplayScale scale = ScaleOfDisplay();
  const int width = scale.ToDisplay(WidestGrid()) + border;
  const int height = scale.ToDisplay(viewportHeight) + border;
  constexpr UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
  SetWindowPos(frame_, nullptr, bounds.left, bounds.top, width, height, flags);
  SetWindowPos(bar, nullptr, bounds.left + width, bounds.top, GetSystemMetrics(SM_CXVSCROLL), height, flags);
  picIcons_ = PictureBox::Create(frame_, pictureId, picture_.Width(), picture_.Height());
  picIcons_.Show(&picture_);
  picIcons_.EnlargeBy(scale);
  picIcons_.FitPicture();
}

RECT IconGrid::Bounds() const {
  RECT bounds{};
  const RECT frame = BoundsInParent(frame_);
  const RECT bar = BoundsInParent(vsb_.Window());
  UnionRect(&bounds, &frame, &bar);
  return bounds;
}

// NOLINTNEXTLINE(readability-make-member-function-const): it moves what belongs to the grid
void IconGrid::Place(POINT corner, int width) {
  const RECT frame = BoundsInParent(frame_);
  const RECT bar = BoundsInParent(vsb_.Window());
  const int barWidth = bar.right - bar.left;
  const int height = frame.bottom - frame.top;
  constexpr UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
  SetWindowPos(frame_, nullptr, corner.x, corner.y, width - barWidth, height, flags);
  SetWindowPos(vsb_.Window(), nullptr, corner.x + width - barWidth, corner.y, barWidth, height, flags);
}

void IconGrid::Show(bool shown) const {
  for (const HWND window : {frame_, vsb_.Window()}) ShowWindow(window, shown ? SW_SHOW : SW_HIDE);
}

void IconGrid::OnScroll(HWND bar, int request) {
  if (bar != vsb_.Window() || !vsb_.Scroll(request)) return;
  if (request == SB_THUMBTRACK) {
    Vsb_Scroll();
  } else {
    Vsb_Change();
  }
}

void IconGrid::Vsb_Change() {
  ScrollTo(vsb_.Value());
}

// Called while the thumb is dragged.
void IconGrid::Vsb_Scroll() {
  ScrollTo(vsb_.Value());
}

bool IconGrid::OnWheel(const MSG& message) {
  if (message.message != WM_MOUSEWHEEL) return false;
  if (IsWindowEnabled(vsb_.Window()) == FALSE || IsWindowVisible(frame_) == FALSE) return false;
  const POINT pointer{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
  if (!IsOver(pointer, frame_) && !IsOver(pointer, vsb_.Window())) return false;
  UINT lines = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int notch = PixelsPerNotch(lines, vsb_.SmallStep(), viewportHeight);
  ScrollTo(vsb_.Value() + wheel_.Turn(GET_WHEEL_DELTA_WPARAM(message.wParam), notch));
  return true;
}

// The one function that sets the bar's value and the picture's position, so that they cannot differ.
void IconGrid::ScrollTo(int value) {
  vsb_.SetValue(value);
  picIcons_.ScrollTo(vsb_.Value());
}

void IconGrid::Clear() {
  picture_.Clear(white);
  picIcons_.Refresh();
}

void IconGrid::Size(const GridGeometry& geometry, int iconCount) {
  const GridExtent extent = ExtentOf(geometry, iconCount);
  const bool isSized = extent_ == extent && vsb_.SmallStep() == geometry.CellPitch;
  // A search calls this once for each folder, and nearly always with the same values. A scroll bar repaints even if it
  // is set to the value that it has, which would cost more than the folder's icons.
  if (isSized && vsb_.Value() == 0) return;
  if (!isSized) Fit(geometry, extent);
  ScrollTo(0);
}

void IconGrid::Fit(const GridGeometry& geometry, const GridExtent& extent) {
  extent_.reset();
  picture_.Resize(picture_.Width(), extent.height, white);
  picIcons_.FitPicture();
  vsb_.SetRange({0, extent.scrollMaximum, geometry.CellPitch, viewportHeight}, viewportHeight);
  EnableWindow(vsb_.Window(), extent.scrolls ? TRUE : FALSE);
  extent_ = extent;
}

void IconGrid::Keep() {
  picIcons_.Refresh();
}

void IconGrid::DrawFrame(Point corner, Point farCorner, bool shown) {
  const SelectedObject pen(picture_.Dc(), GetStockObject(shown ? BLACK_PEN : WHITE_PEN));
  const SelectedObject brush(picture_.Dc(), GetStockObject(NULL_BRUSH));
  // The far corner is part of the frame; GDI excludes the last row and column.
  const RECT bounds{corner.x, corner.y, farCorner.x + 1, farCorner.y + 1};
  Rectangle(picture_.Dc(), bounds.left, bounds.top, bounds.right, bounds.bottom);
  picIcons_.Invalidate(bounds);
}

}  // namespace tarvik
