#pragma once

#include <windows.h>

#include "forms/Form.h"

namespace tarvik {

// The display's dots an inch, as a window's device context has them.
struct DotsPerInch {
  int across;
  int down;
};
DotsPerInch DotsPerInchOf(HWND window);

// Gives a loaded form that size on the screen, its frame included, in twips. It stays where it is.
void SizeInTwips(Form& form, int width, int height);

}  // namespace tarvik
