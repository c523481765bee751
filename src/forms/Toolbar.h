#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

#include "platform/Handles.h"

namespace tarvik {

// A toolbar of picture buttons. A button's command id is also the id of its icon resource. Its text is not shown on the
// button; it is the tooltip and the name for screen readers. For the keyboard see AddToolbarKeys.
class Toolbar {
 public:
  struct Button {
    int id;
    std::string_view text;  // UTF-8
    int disabledIcon = 0;   // the icon resource shown while it is disabled; required for buttons that can be disabled
    bool startsGroup = false;
  };

  // Fills the control `toolbar`, which has no buttons yet. Pictures are `side` pixels square. May be called again for
  // another control with the same buttons, after the former one was destroyed.
  void Attach(HWND toolbar, int side, std::span<const Button> buttons);

  void SetText(int id, std::string_view text);
  void Enable(int id, bool enabled);

  // The size that all buttons need, in pixels.
  SIZE Extent() const;
  // Makes the toolbar as wide as its window. Call it when the window's size has changed.
  void Resize();

 private:
  HWND window_ = nullptr;
  ImageListHandle pictures_;
  ImageListHandle disabledPictures_;
};

}  // namespace tarvik
