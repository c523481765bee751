#include "startup/FormSize.h"

#include <windows.h>

#include "platform/Handles.h"
#include "startup/Placement.h"

namespace tarvik {

void SizeInTwips(Form& form, int width, int height) {
  const WindowDc dc(form.Window());
  SetWindowPos(form.Window(), nullptr, 0, 0, ToPixels(width, GetDeviceCaps(dc.get(), LOGPIXELSX)),
               ToPixels(height, GetDeviceCaps(dc.get(), LOGPIXELSY)), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace tarvik
