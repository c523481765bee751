#pragma once

#include "driver/Program.h"

namespace tarvik::end_to_end {

// Replaces a copy that has not been started yet by the program whose shell finds no icon in a 16-bit module. Everything
// else in it is as in the real program.
void TakeTodaysShell(const Program& program);

}  // namespace tarvik::end_to_end
