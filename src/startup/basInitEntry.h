#pragma once

#include <functional>
#include <string>

#include "startup/Language.h"
#include "startup/ProgramState.h"

// The start-up: checks the display and prepares everything needed before the first window. CenterForm and
// ApplySkinToForm, which every window calls when it loads, are in startup/FormPlacement.h.
namespace tarvik::basInitEntry {

// The functions of the system that the start-up calls; all are set. Texts and paths are UTF-8.
struct StartUpSystem {
  ReadLanguageBuffer readLanguage;
  // The screen that the program starts on: its colour depth, and its size in pixels.
  std::function<int()> bitsPerPixel;
  std::function<int()> screenWidth;
  std::function<int()> screenHeight;
  // Shows a message box with the critical-stop sign and an OK button; returns when it is closed.
  std::function<void(const std::string& text, const std::string& title)> showCriticalMessage;
  std::function<std::string()> systemFolder;  // without a trailing backslash
  std::function<std::string()> tempFolder;    // with a trailing backslash
  // Creates the start-up window if there is none and shows it modeless.
  std::function<void()> showFrmSpash;
};

// The whole start-up, up to the start-up window; a second copy of the program starts like the first. If the display is
// insufficient, it ends before any window exists or anything is written. The palettes of the bitmap writer need no
// initialisation here: they are compile-time tables.
void Main(ProgramState& state, const StartUpSystem& system);

// Whether the screen has more than 256 colours; if not, says so in the current language, or says nothing if that is
// none of the three. Queries the screen twice: the first answer is stored in `state.ScreenBitsPerPixel`, the second
// decides. A depth beyond 16 bits fails without a message.
bool CheckColorMode(ProgramState& state, const StartUpSystem& system);

// Whether the screen is at least 800 x 600 pixels; if not, the same with its own message.
bool CheckScreenResolution(const ProgramState& state, const StartUpSystem& system);

}  // namespace tarvik::basInitEntry
