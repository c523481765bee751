#pragma once

#include <windows.h>

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
class PictureBox {
 public:
  static constexpr UINT eventMessage = WM_APP + 1;
  static constexpr const wchar_t* className = L"TarvikPicture";

  static void Register(HINSTANCE instance);

  PictureBox() = default;
  explicit PictureBox(HWND window) : window_(window) {}

  // A picture box inside another window, with its top-left corner at (0, 0).
  static PictureBox Create(HWND parent, int id, int width, int height);

  HWND Window() const { return window_; }
  // Shows `picture` from now on, with its top-left corner in the window's; null for none. The picture belongs to the
  // caller and must outlive the window or be replaced.
  void Show(const Surface* picture);
  // Has the picture read aloud as this list. The content outlives the window.
  void Describe(const PictureContent* content);
  // Repaints from the picture, now.
  void Refresh();

 private:
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

}  // namespace tarvik
