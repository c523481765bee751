#pragma once

#include <string>

#include "base/Integer16.h"
#include "startup/Language.h"

namespace tarvik {

// State shared by the whole program. Created at start-up, lives for the run, and is passed to every window.
// NOLINTBEGIN(readability-identifier-naming): see Names and ids in docs/design.md
struct ProgramState {
  LanguageCode CurrentLanguage;  // "ENG", "CHS" or "CHT"; any other text matches no language
  Integer16 ScreenBitsPerPixel;  // of the screen as first measured
  // The shell library in the system folder, and a scratch icon file in the user's temporary folder. Nothing reads them
  // (deliberate: oddities 4).
  std::string Shell32Path;
  std::string TempIconPath;
  bool ShowAsAbout = false;  // the start-up window opens as an About box; never cleared (deliberate: oddities 6)

  // The entry that the main window's OK stores. Nothing reads it (deliberate: oddities 14).
  std::string ChosenIconPath;
  Integer16 ChosenIconIndex;
  bool ChoiceCancelled = true;

  // The magnified picture of the enhanced view and the hot-spot picker.
  Integer16 MagnifiedSide = 385;  // pixels, one more than the largest icon times its magnification
  Integer16 Magnification = 12;   // screen pixels per icon pixel

  // The hot spot of a cursor, as last set by the hot-spot picker.
  Integer16 HotSpotX;
  Integer16 HotSpotY;
  bool HotSpotCancelled = true;  // whether the picker was closed without OK
  Integer16 HotSpotBound;        // the maximum of both coordinates; never raised from 0 (deliberate: oddities 42)

  // The extension of the files that a batch save is about to write: ".ICO", ".CUR" or that of an image type.
  std::string SaveExtension;
};
// NOLINTEND(readability-identifier-naming)

// The product's name: the title of simple message boxes, and the first words of every other title.
inline constexpr const char* productTitle = "Brindle Tarvik";

}  // namespace tarvik
