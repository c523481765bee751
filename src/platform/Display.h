#pragma once

#include "base/DisplayScale.h"

namespace tarvik {

// The dots an inch of the main screen, which the whole program follows.
int DotsOfDisplay();

// How the display enlarges what the program counts in pixels.
DisplayScale ScaleOfDisplay();

}  // namespace tarvik
