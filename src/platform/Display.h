#pragma once

#include "base/DisplayScale.h"

namespace tarvik {

// The dpi of the main screen, which the whole program uses.
int DotsOfDisplay();

// The scale from the program's pixels to display pixels.
DisplayScale ScaleOfDisplay();

}  // namespace tarvik
