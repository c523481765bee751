#include "search/icons/ShellFunctions.h"

#include "platform/SystemFunctions.h"

namespace tarvik {

ShellFunctions SystemShell() {
  return {.extractIconEx = late::ExtractIconExA.Get(), .privateExtractIcons = PrivateExtractIconsA};
}

}  // namespace tarvik
