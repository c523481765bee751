#pragma once

#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <string>

#include "platform/Holdings.h"

namespace tarvik::bench {

inline constexpr double bytesInMegabyte = 1024.0 * 1024.0;

// The system resources that this process holds.
struct Held {
  support::Holdings holdings{};
  int windows = 0;
  double peakMegabytes = 0;  // the maximum memory in use since the process started
};

inline Held HeldNow() {
  Held held{.holdings = support::HeldBy(GetCurrentProcess())};
  const auto count = [](HWND /*window*/, LPARAM windows) -> BOOL {
    ++*reinterpret_cast<int*>(windows);
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), count, reinterpret_cast<LPARAM>(&held.windows));
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  held.peakMegabytes = static_cast<double>(memory.PeakWorkingSetSize) / bytesInMegabyte;
  return held;
}

// Prints the resources of the process after a comparison of that many icons. The peak is that of the whole process up
// to then.
inline void PrintHeld(const std::string& title, int icons) {
  const Held held = HeldNow();
  std::printf("%-44s %d icons; peak memory %.1f MB, %d kernel handles, %d GDI objects\n", title.c_str(), icons,
              held.peakMegabytes, held.holdings.kernelHandles, held.holdings.gdiObjects);
  std::fflush(stdout);
}

}  // namespace tarvik::bench
