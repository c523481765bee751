#include "forms/MousePointer.h"

#include <windows.h>

namespace tarvik {
namespace {

// Used only on the user-interface thread.
int hourglasses = 0;
HCURSOR former = nullptr;

HCURSOR WaitPointer() {
  return LoadCursorW(nullptr, IDC_WAIT);
}

}  // namespace

Finally ShowHourglass() {
  if (hourglasses++ == 0) former = SetCursor(WaitPointer());
  return Finally([] {
    if (--hourglasses == 0) SetCursor(former);
  });
}

bool MaintainHourglass() {
  if (hourglasses > 0) SetCursor(WaitPointer());
  return hourglasses > 0;
}

}  // namespace tarvik
