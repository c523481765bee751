#pragma once

#include <windows.h>

#include <cstdint>

namespace tarvik::support {

// The system resources that a process holds.
struct Holdings {
  int gdiObjects;      // device contexts, bitmaps, brushes, fonts, pens, regions; an icon counts by its bitmaps
  int kernelHandles;   // files, mappings, events ...
  int userHandles;     // windows, menus, icons, pointers; under Wine those of all processes together
  std::int64_t bytes;  // of memory in use
};

// `process` needs the access rights to query information and to read memory.
Holdings HeldBy(HANDLE process);

// The number of views of files and of shared memory in the process's memory. Needs the same rights.
int CountMappedViews(HANDLE process);

}  // namespace tarvik::support
