#pragma once

#include <windows.h>

#include "base/NonCopyable.h"
#include "forms/OptionButtons.h"

namespace tarvik {

// Takes the keyboard focus from a form's control during its lifetime, and gives it back unless the user has moved it
// meanwhile. If the control is disabled by then, the next one gets the focus, because a disabled control would swallow
// every key. Of option buttons the chosen one gets it, because the choice may have changed.
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
    SetFocus(ChosenOption(form_, target));
  }

 private:
  HWND form_;
  HWND focus_;                // null if the focus was not in the form
  HWND meanwhile_ = nullptr;  // the form, or the control to which a dialog passes the focus
};

}  // namespace tarvik
