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

// The keys held during the key or pointer message that is being served, as a mask (see PictureEvent).
int HeldKeys();

// A child window that shows a picture kept in memory, or its background if it has none. Its class in dialog templates
// is "TarvikPicture". It sends eventMessage to its form, with lParam pointing to a PictureEvent.
//
// A box can show its picture enlarged. The scale is internal to the box: drawing and events use the picture's pixels.
class PictureBox {
 public:
  static constexpr UINT eventMessage = WM_APP + 1;
  static constexpr const wchar_t* className = L"TarvikPicture";

  static void Register(HINSTANCE instance);

  PictureBox() = default;
  explicit PictureBox(HWND window) : window_(window) {}

  // Creates a picture box inside another window, with its top-left corner at (0, 0). Throws NoWindowError if the system
  // creates none.
  static PictureBox Create(HWND parent, int id, int width, int height);

  HWND Window() const { return window_; }
  // Shows `picture` from now on, aligned to the window's top-left corner; null for none. The picture belongs to the
  // caller and must outlive the window or be replaced.
  void Show(const Surface* picture);
  // Makes the box show its pictures enlarged. Throws OutOfMemoryError if memory runs out.
  void EnlargeBy(const DisplayScale& scale);
  // Resizes the window to the size of its picture on the display.
  void FitPicture();
  // Moves the window so that the picture's row `row` is at the top of the parent window, and its left edge at the left.
  void ScrollTo(int row);
  // Exposes the picture to screen readers as this list. The content outlives the window.
  void Describe(const PictureContent* content);
  // Repaints from the picture immediately.
  void Refresh();
  // Marks this part of the picture for repainting.
  void Invalidate(const RECT& part);
  // The rectangle of a part of the picture in the box `window`, in display pixels of that window.
  static RECT BoundsInWindow(HWND window, const RECT& part);

 private:
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

}  // namespace tarvik
