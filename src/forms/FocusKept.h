#pragma once

#include <windows.h>

#include "base/NonCopyable.h"

namespace tarvik {

// Takes the keyboard focus from a form's control for as long as it lives, and gives it back unless the user has moved
// it meanwhile. A control that is disabled by then does not get it, for it would swallow every key: the next one does.
class FocusKept : NonCopyable {
 public:
  explicit FocusKept(HWND form) : form_(form), focus_(GetFocus()) {
    if (IsChild(form_, focus_) == FALSE) {
      focus_ = nullptr;
    } else {
      SetFocus(form_);
      meanwhile_ = GetFocus();
    }
  }
  ~FocusKept() {
    const HWND now = GetFocus();
    if (focus_ == nullptr || (now != meanwhile_ && now != nullptr)) return;
    const HWND target = IsWindowEnabled(focus_) != FALSE ? focus_ : GetNextDlgTabItem(form_, focus_, FALSE);
    SetFocus(target);
  }

 private:
  HWND form_;
  HWND focus_;                // null if it was not the form's to give
  HWND meanwhile_ = nullptr;  // the form, or the control that a dialog passes its own focus on to
};

}  // namespace tarvik
