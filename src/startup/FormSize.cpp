#include "startup/FormSize.h"

#include <windows.h>

#include "platform/Handles.h"
#include "startup/Placement.h"

namespace tarvik {

DotsPerInch DotsPerInchOf(HWND window) {
  const WindowDc dc(window);
  return {GetDeviceCaps(dc.get(), LOGPIXELSX), GetDeviceCaps(dc.get(), LOGPIXELSY)};
}

void SizeInTwips(Form& form, int width, int height) {
  const auto [across, down] = DotsPerInchOf(form.Window());
  SetWindowPos(form.Window(), nullptr, 0, 0, ToPixels(width, across), ToPixels(height, down),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace tarvik
