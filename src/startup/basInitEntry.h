#pragma once

#include <string>

#include "startup/Language.h"
#include "startup/ProgramState.h"

// The start-up: checks the display and prepares everything needed before the first window. CenterForm and
// ApplySkinToForm, which every window calls when it loads, are in startup/FormPlacement.h.
namespace tarvik::basInitEntry {

// The system services that the start-up uses. Texts and paths are UTF-8.
class StartUpSystem {
 public:
  virtual ~StartUpSystem() = default;

  virtual std::string ReadLanguage(const std::string& name) = 0;  // as ReadLanguageBuffer
  // The screen that the program starts on: its colour depth, and its size in pixels.
  virtual int BitsPerPixel() = 0;
  virtual int ScreenWidth() = 0;
  virtual int ScreenHeight() = 0;
  // A message box with the critical-stop sign and an OK button; returns when it is closed.
  virtual void ShowCriticalMessage(const std::string& text, const std::string& title) = 0;
  virtual std::string SystemFolder() = 0;  // without a trailing backslash
  virtual std::string TempFolder() = 0;    // with a trailing backslash
  // Creates the start-up window if there is none and shows it modeless.
  virtual void ShowFrmSpash() = 0;
};

// The whole start-up, up to the start-up window; a second copy of the program starts like the first. If the display is
// insufficient, it ends before any window exists or anything is written. The palettes of the bitmap writer need no
// initialisation here: they are compile-time tables.
void Main(ProgramState& state, StartUpSystem& system);

// Whether the screen has more than 256 colours; if not, says so in the current language, or says nothing if that is
// none of the three. Queries the screen twice: the first answer is stored in `state.ScreenBitsPerPixel`, the second
// decides. A depth beyond 16 bits fails without a message.
bool CheckColorMode(ProgramState& state, StartUpSystem& system);

// Whether the screen is at least 800 x 600 pixels; if not, the same with its own message.
bool CheckScreenResolution(const ProgramState& state, StartUpSystem& system);

}  // namespace tarvik::basInitEntry
