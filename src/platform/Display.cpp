#include "platform/Display.h"

#include <windows.h>

#include "platform/Handles.h"

namespace tarvik {

int DotsOfDisplay() {
  const WindowDc screen(nullptr);
  return GetDeviceCaps(screen.get(), LOGPIXELSX);
}

DisplayScale ScaleOfDisplay() {
  return DisplayScale(DotsOfDisplay());
}

}  // namespace tarvik
