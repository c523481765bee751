// What the program tarvik_modules has instead of this machine's shell: one that finds no icon in a 16-bit module, as on
// Windows since Vista.

#include "search/icons/ShellFunctions.h"
#include "search/icons/ShellWithoutModules.h"

namespace tarvik {

ShellFunctions SystemShell() {
  return support::ShellWithoutModules();
}

}  // namespace tarvik
