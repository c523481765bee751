#pragma once

#include "base/Finally.h"

namespace tarvik {

// Shows the hourglass until what this returns ends; then the pointer shows that was there before. Meanwhile windows do
// not put their own pointer back when the mouse moves over them.
Finally ShowHourglass();

// Shows the hourglass once more if it is to be seen, as an answer to the system's question for a window's pointer.
// False, and nothing done, if it is not.
bool MaintainHourglass();

}  // namespace tarvik
