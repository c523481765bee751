#pragma once

#include <windows.h>

// The focus on option buttons. Windows and Wine 10, but not Wine 8, count it as a click on the button that receives it.
// So only the chosen button of a group may have it.
namespace tarvik {

// The chosen button of the group of option buttons to which `control` of the form belongs. `control` itself if it is
// not an option button, which includes null, or if none of the group is chosen.
inline HWND ChosenOption(HWND form, HWND control) {
  const auto isOption = [](HWND window) { return (SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0; };
  const auto isChosen = [&](HWND window) {
    return isOption(window) && SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
  };
  if (control == nullptr || !isOption(control) || isChosen(control)) return control;
  const HWND first = GetNextDlgGroupItem(form, control, FALSE);
  HWND button = first;
  do {
    if (isChosen(button)) return button;
    button = GetNextDlgGroupItem(form, button, FALSE);
  } while (button != first);
  return control;
}

// Moves the focus from another option button of a group to the one that was chosen meanwhile.
inline void FocusChosenOption(HWND form) {
  const HWND focus = GetFocus();
  const HWND chosen = ChosenOption(form, focus);
  if (chosen != focus) SetFocus(chosen);
}

}  // namespace tarvik
