#include "startup/FormSize.h"

#include <windows.h>

#include "platform/Display.h"
#include "startup/Placement.h"

namespace tarvik {

void SizeInTwips(Form& form, int width, int height) {
  const int dotsPerInch = DotsOfDisplay();
  SetWindowPos(form.Window(), nullptr, 0, 0, ToPixels(width, dotsPerInch), ToPixels(height, dotsPerInch),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace tarvik
