#pragma once

#include "search/icons/ShellFunctions.h"

namespace tarvik::support {

// The functions of the shell as they are on Windows since Vista: they find no icon in a 16-bit module. Any other file
// is left to those of this machine.
ShellFunctions ShellWithoutModules();

}  // namespace tarvik::support
