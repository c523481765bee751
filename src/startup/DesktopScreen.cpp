#include "startup/DesktopScreen.h"

#include <windows.h>

namespace tarvik {

int DesktopScreen::BitsPerPixel() {
  return GetDeviceCaps(GetDC(nullptr), BITSPIXEL);
}

int DesktopScreen::Width() {
  return GetSystemMetrics(SM_CXSCREEN);
}

int DesktopScreen::Height() {
  return GetSystemMetrics(SM_CYSCREEN);
}

}  // namespace tarvik
