#pragma once

#include <windows.h>

#include "forms/Form.h"

namespace tarvik {

// The display's dpi, from a window's device context.
struct DotsPerInch {
  int across;
  int down;
};
DotsPerInch DotsPerInchOf(HWND window);

// Resizes a loaded form, frame included, to a size in twips. Its position does not change.
void SizeInTwips(Form& form, int width, int height);

}  // namespace tarvik
