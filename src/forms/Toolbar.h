#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

#include "platform/Handles.h"

namespace tarvik {

// A toolbar of picture buttons. A button's command id is also the id of the icon resource that it shows. Its text does
// not show: it is its tooltip, and its name for whoever reads the screen aloud. The keyboard works it as AddToolbarKeys
// says.
class Toolbar {
 public:
  struct Button {
    int id;
    std::string_view text;  // UTF-8
    int disabledIcon = 0;   // the icon resource shown while it is disabled; for a button that may be, not 0
    bool startsGroup = false;
  };

  // Fills the control `toolbar`, which has no buttons yet. Pictures are `side` pixels square. May be called again for
  // another control with the same buttons, once the former one is gone.
  void Attach(HWND toolbar, int side, std::span<const Button> buttons);

  void SetText(int id, std::string_view text);
  void Enable(int id, bool enabled);

  // What all buttons need, in pixels.
  SIZE Extent() const;
  // Makes the toolbar as wide as its window. To be called when the window's size changed.
  void Resize();

 private:
  HWND window_ = nullptr;
  ImageListHandle pictures_;
  ImageListHandle disabledPictures_;
};

}  // namespace tarvik
