#pragma once

#include "driver/Program.h"

namespace tarvik::end_to_end {

// Puts the program whose shell finds no icon in a 16-bit module in the place of a copy that has not been started yet.
// All else in it is as in the real one.
void TakeTodaysShell(const Program& program);

}  // namespace tarvik::end_to_end
