#pragma once

#include "search/icons/ShellFunctions.h"

namespace tarvik::support {

// The functions of the shell as on Windows since Vista: they find no icon in a 16-bit module. Other files go to this
// machine's shell.
ShellFunctions ShellWithoutModules();

}  // namespace tarvik::support
