// Replaces this machine's shell in the program tarvik_modules: this one finds no icon in a 16-bit module, as on Windows
// since Vista.

#include "search/icons/ShellFunctions.h"
#include "search/icons/ShellWithoutModules.h"

namespace tarvik {

ShellFunctions SystemShell() {
  return support::ShellWithoutModules();
}

}  // namespace tarvik
