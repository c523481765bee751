#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace tarvik {

// What a picture box shows, for whoever has the screen read aloud: a list of which one item is chosen.
struct PictureContent {
  struct ChosenPart {
    std::string name;  // UTF-8
    RECT bounds{};     // in the picture's pixels
  };

  std::function<std::string()> name;  // of the list, UTF-8
  std::function<std::optional<ChosenPart>()> chosenItem;
};

// The answer to WM_GETOBJECT for the client area of a picture box; 0, which leaves the answer to the system, if the
// system cannot pass one on. `content` is asked whenever the answer is used, and returns null once the window is gone.
LRESULT AnswerForPicture(HWND window, WPARAM wParam, const PictureContent* (*content)(HWND window));

// Tells those who listen that another item is chosen.
void TellChosenItem(HWND window);

}  // namespace tarvik
