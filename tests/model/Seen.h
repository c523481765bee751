#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "model/Picture.h"

// What the windows of this thread show, read only through public interfaces of the system. Texts are UTF-8.
namespace tarvik::model::seen {

// A window's controls by their ids, looked up once, because each lookup is a request to Wine's server.
class Controls {
 public:
  explicit Controls(HWND window);
  HWND Window() const { return window_; }
  HWND Of(int id) const {
    const auto found = all_.find(id);
    return found == all_.end() ? nullptr : found->second;
  }

 private:
  HWND window_;
  std::unordered_map<int, HWND> all_;
};

std::string Text(HWND window);
inline std::string Text(HWND window, int id) {
  return Text(GetDlgItem(window, id));
}
bool IsTicked(HWND button);
// The first panel of a status bar.
std::string Status(HWND bar);
std::vector<std::string> ListRows(HWND listBox);
std::string ChosenComboRow(HWND comboBox);
std::string Cell(HWND listView, int row, int column);
std::string Header(HWND listView, int column);
bool IsMenuEnabled(HWND window, int id);
bool IsBarMenuEnabled(HWND window, int place);
bool IsMenuChecked(HWND window, int id);
// Whether the control is visible by its own style, even if its window is hidden.
bool IsShown(HWND control);

// The pixels of a window from its top left corner on, as painted. Valid until the next call.
const Picture& Pixels(HWND window, int width, int height);

// The visible top-level windows of this thread.
std::vector<HWND> WindowsInSight();
// The one of them that has the control; null if none does.
HWND WindowWith(int id, const std::vector<HWND>& windows = WindowsInSight());
// The visible message box, and its text.
HWND MessageBoxInSight();
std::string BoxText(HWND box);
// Paints all windows of this thread now.
void PaintAll();

}  // namespace tarvik::model::seen
