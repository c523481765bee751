#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace tarvik {

// The content of a picture box for screen readers: a list of which one item is current.
struct PictureContent {
  struct CurrentPart {
    std::string name;  // UTF-8
    RECT bounds{};     // in the picture's pixels
    bool selected = false;
  };

  std::function<std::string()> name;  // of the list, UTF-8
  std::function<std::optional<CurrentPart>()> currentItem;
};

// The answer to WM_GETOBJECT for the client area of a picture box; 0, which leaves the answer to the system, if the
// system cannot marshal the object. `content` is called whenever the answer is used, and returns null once the window
// is destroyed.
LRESULT AnswerForPicture(HWND window, WPARAM wParam, const PictureContent* (*content)(HWND window));

// Notifies screen readers that another item is current, or that it was selected or taken out of the selection.
void TellCurrentItem(HWND window, bool selected);

}  // namespace tarvik
