#pragma once

#include <windows.h>

#include <cstdint>

namespace tarvik::support {

// What a process holds of the system.
struct Holdings {
  int gdiObjects;      // device contexts, bitmaps, brushes, fonts, pens, regions; an icon counts by its bitmaps
  int kernelHandles;   // files, mappings, events ...
  int userHandles;     // windows, menus, icons, pointers; under Wine those of all processes together
  std::int64_t bytes;  // of memory in use
};

// `process` needs the rights to be asked and to be read.
Holdings HeldBy(HANDLE process);

// How many views of files and of shared memory the process has in its memory. The same rights.
int CountMappedViews(HANDLE process);

}  // namespace tarvik::support
