#pragma once

#include <windows.h>

#include "base/DisplayScale.h"
#include "forms/AccessiblePicture.h"
#include "platform/Surface.h"

namespace tarvik {

// What the pointer did on a picture box. Its position is in the picture's pixels.
struct PictureEvent {
  enum class Kind { MouseDown, MouseUp, MouseMove, DblClick };
  Kind kind = Kind::MouseMove;
  int id = 0;        // the picture box's control id
  int button = 0;    // 1 left, 2 right, 4 middle; on a move, the sum of those held down
  int heldKeys = 0;  // mask: 1 Shift, 2 Ctrl, 4 Alt
  int x = 0;
  int y = 0;
};

// The keys held at the key press or pointer message that is being served, as a mask (see PictureEvent).
int HeldKeys();

// A child window that shows a picture kept in memory, or its background where it has none. In a dialog template its
// class is "TarvikPicture". It sends eventMessage to its form, lParam pointing at a PictureEvent.
//
// A box can show its picture enlarged. It alone knows: whoever draws on the picture or gets its events counts in the
// picture's pixels.
class PictureBox {
 public:
  static constexpr UINT eventMessage = WM_APP + 1;
  static constexpr const wchar_t* className = L"TarvikPicture";

  static void Register(HINSTANCE instance);

  PictureBox() = default;
  explicit PictureBox(HWND window) : window_(window) {}

  // A picture box inside another window, with its top-left corner at (0, 0). Throws NoWindowError if the system makes
  // none.
  static PictureBox Create(HWND parent, int id, int width, int height);

  HWND Window() const { return window_; }
  // Shows `picture` from now on, with its top-left corner in the window's; null for none. The picture belongs to the
  // caller and must outlive the window or be replaced.
  void Show(const Surface* picture);
  // Has the box show its pictures enlarged. Throws OutOfMemoryError if there is no memory for it.
  void EnlargeBy(const DisplayScale& scale);
  // Gives the window the size that its picture has on the display.
  void FitPicture();
  // Moves the window so that the picture's row `row` is at the top of the parent window, and its left edge at the left.
  void ScrollTo(int row);
  // Has the picture read aloud as this list. The content outlives the window.
  void Describe(const PictureContent* content);
  // Repaints from the picture, now.
  void Refresh();
  // Repaints this part of the picture some time.
  void Invalidate(const RECT& part);
  // Where a part of the picture of the box `window` is in that window, in display pixels.
  static RECT PlaceInWindow(HWND window, const RECT& part);

 private:
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

}  // namespace tarvik
