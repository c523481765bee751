#pragma once

#include <windows.h>

namespace tarvik {

// Takes the keyboard focus from a form's control for as long as it lives, and gives it back.
class FocusKept {
 public:
  explicit FocusKept(HWND form) : focus_(GetFocus()) {
    if (IsChild(form, focus_) != FALSE) SetFocus(form);
  }
  ~FocusKept() { SetFocus(focus_); }
  FocusKept(const FocusKept&) = delete;
  FocusKept& operator=(const FocusKept&) = delete;

 private:
  HWND focus_;
};

}  // namespace tarvik
