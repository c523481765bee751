#pragma once

#include <windows.h>

#include <optional>

#include "forms/PictureBox.h"
#include "forms/ScrollBar.h"
#include "grid/GridView.h"
#include "grid/WheelScroll.h"
#include "platform/Surface.h"

namespace tarvik {

// The grid on the main window: a viewport, in it a picture box with the picture PicIcons, and next to it the scroll bar
// Vsb, whose value is how many pixels the picture is scrolled. The three windows belong to the main window; no other
// class sizes or moves them.
class IconGrid final : public GridView {
 public:
  IconGrid();

  // Takes over the viewport `frame` and the scroll bar `bar`, children of one window, and creates the picture box with
  // the id `pictureId`. The viewport is sized in pixels for the grids and scaled with the display's dpi, independently
  // of the dialog's font, and the bar moves to its right edge. The bar's values are the picture's pixels.
  void Attach(HWND frame, HWND bar, int pictureId);
  // Exposes the picture to screen readers as this list, and notifies them when another of its items is current. The
  // content outlives the windows.
  void Describe(const PictureContent* content) { picIcons_.Describe(content); }
  void TellCurrentItem(bool selected) const { tarvik::TellCurrentItem(picIcons_.Window(), selected); }
  // The rectangle of viewport and bar together, in display pixels of their parent window.
  RECT Bounds() const;
  // Moves both there and makes them `width` display pixels wide together. The height and the picture do not change: in
  // a wider viewport the space to the right of the picture is empty.
  void Place(POINT corner, int width);
  void Show(bool shown) const;

  // Handles WM_VSCROLL; does nothing if it came from another bar.
  void OnScroll(HWND bar, int request);
  // Scrolls if `message` is a turn of the mouse wheel over a grid that scrolls; returns whether it is one.
  bool OnWheel(const MSG& message);

  void Clear() override;
  void Size(const GridGeometry& geometry, int iconCount) override;
  int InnerHeight() const override { return picture_.Height(); }
  DrawSurface& Picture() override { return picture_; }
  void Keep() override;
  void DrawFrame(Point corner, Point farCorner, bool shown) override;

 private:
  void Vsb_Change();
  void Vsb_Scroll();
  void Fit(const GridGeometry& geometry, const GridExtent& extent);
  void ScrollTo(int value);

  HWND frame_ = nullptr;
  ScrollBar vsb_;
  PictureBox picIcons_;
  Surface picture_;
  WheelScroll wheel_;
  // The last size of the windows, if any.
  std::optional<GridExtent> extent_;
};

}  // namespace tarvik
