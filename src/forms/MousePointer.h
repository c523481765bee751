#pragma once

#include "base/Finally.h"

namespace tarvik {

// Shows the hourglass until the returned object is destroyed; then restores the previous pointer. Meanwhile windows do
// not replace it when the mouse moves over them.
Finally ShowHourglass();

// Called on WM_SETCURSOR: shows the hourglass again if it is active. Returns false and does nothing if it is not.
bool MaintainHourglass();

}  // namespace tarvik
