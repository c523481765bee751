#include "startup/DesktopScreen.h"

#include <windows.h>

namespace tarvik::desktopScreen {

int BitsPerPixel() {
  return GetDeviceCaps(GetDC(nullptr), BITSPIXEL);
}

int Width() {
  return GetSystemMetrics(SM_CXSCREEN);
}

int Height() {
  return GetSystemMetrics(SM_CYSCREEN);
}

}  // namespace tarvik::desktopScreen
