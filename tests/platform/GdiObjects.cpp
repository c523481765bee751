#include "platform/GdiObjects.h"

#include <windows.h>
#include <winternl.h>

#include <cstddef>

namespace tarvik::testing {

int CountGdiObjects() {
  if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) return static_cast<int>(count);

  // Wine does not count, but it keeps the table of the process where Windows keeps its own: its address stands in the
  // process environment block.
  constexpr std::size_t tablePointerOffset = 0xF8;
  constexpr std::size_t entryCount = 65536;
  constexpr std::size_t entrySize = 24;
  constexpr std::size_t typeOffset = 14;
  PROCESS_BASIC_INFORMATION process{};
  NtQueryInformationProcess(GetCurrentProcess(), ProcessBasicInformation, &process, sizeof process, nullptr);
  const auto* const environment = reinterpret_cast<const std::byte*>(process.PebBaseAddress);
  const auto* const table = *reinterpret_cast<const std::byte* const*>(environment + tablePointerOffset);
  int count = 0;
  for (std::size_t entry = 0; entry < entryCount; ++entry)
    count += table[entry * entrySize + typeOffset] != std::byte{0};
  return count;
}

}  // namespace tarvik::testing
