#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "model/Picture.h"

// What the windows of this thread show, read as anyone could read it. Texts are UTF-8.
namespace tarvik::model::seen {

// A window's controls by their ids, found once: the system asks its server each time.
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
// Whether the control is meant to be seen, whatever its window is.
bool IsShown(HWND control);

// The pixels of a window from its top left corner on, as they are painted. They last until the next call.
const Picture& Pixels(HWND window, int width, int height);

// The top windows of this thread that are in sight.
std::vector<HWND> WindowsInSight();
// The one of them that has the control; null without one.
HWND WindowWith(int id, const std::vector<HWND>& windows = WindowsInSight());
// The message box in sight, and its text.
HWND MessageBoxInSight();
std::string BoxText(HWND box);
// Has all windows of this thread painted now.
void PaintAll();

}  // namespace tarvik::model::seen
