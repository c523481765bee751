#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "model/Picture.h"

// What the windows of this thread show, read only through public interfaces of the system. Texts are UTF-8.
namespace tarvik::model::seen {

// A window's controls by their ids, looked up once, because each lookup is a request to Wine's server. It also keeps
// the bounds that they had then.
class Controls {
 public:
  explicit Controls(HWND window);
  HWND Window() const { return window_; }
  HWND Of(int id) const {
    const auto found = all_.find(id);
    return found == all_.end() ? nullptr : found->second.window;
  }
  // The window's first bounds on the screen, and that of a control in the window.
  const RECT& First() const { return first_; }
  const RECT& FirstOf(int id) const { return all_.at(id).first; }

 private:
  struct Control {
    HWND window;
    RECT first;
  };

  HWND window_;
  RECT first_{};
  std::unordered_map<int, Control> all_;
};

// The bounds of a control in the client area of its top-level window.
RECT BoundsIn(HWND window, HWND control);

// The answer of the control's own window procedure. Under Wine a message to a subclassed control costs several requests
// to the server, and the program's subclasses change none of these answers.
LRESULT Ask(HWND control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
std::string Text(HWND window);
// Of a top-level window's control.
std::string Text(HWND window, int id);
bool IsTicked(HWND button);
// The first panel of a status bar.
std::string Status(HWND bar);
std::vector<std::string> ListRows(HWND listBox);
std::string ChosenComboRow(HWND comboBox);
std::string Cell(HWND listView, int row, int column);
std::string Header(HWND listView, int column);
bool IsMenuEnabled(HWND window, int id);
bool IsBarMenuEnabled(HWND window, int position);
bool IsMenuChecked(HWND window, int id);
// Whether the control is visible by its own style, even if its window is hidden.
bool IsShown(HWND control);

// The pixels of a window from its top left corner on, as painted. Valid until the next call.
const Picture& Pixels(HWND window, int width, int height);

// The visible top-level windows of this thread.
std::vector<HWND> WindowsInSight();
// The controls of one of them. They are looked up when it is first seen.
const Controls& ControlsOf(HWND window);
// Forgets all controls.
void Forget();
// The one of them that has the control; null if none does.
HWND WindowWith(int id, const std::vector<HWND>& windows = WindowsInSight());
// The visible message box, and its text.
HWND MessageBoxInSight();
std::string BoxText(HWND box);
// The context menu in sight; null if there is none.
HWND MenuInSight();
// The text that the tool tip of this control would show if the pointer rested; empty if there is none.
std::string TipOf(HWND control);
// No tool tip appears by itself from now on. For the tips of the windows that there are.
void DelayTips();
// Paints all windows of this thread now.
void PaintAll();

}  // namespace tarvik::model::seen
